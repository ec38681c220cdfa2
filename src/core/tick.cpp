#include "core/tick.h"

#include <algorithm>
#include <utility>

#include "core/client_messages.h"
#include "core/process/client_writer.h"
#include "core/process/exit_cleanup.h"
#include "core/process/process_state.h"
#include "core/ui_commands.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/message_dialogs.h"
#include "dialogs/x_application.h"

namespace {

void OnFirstTick() {
    static bool first = true;
    if (!std::exchange(first, false)) return;
    CreateHiddenWindow();
    OpenWaitingMessageDialogs();
}

bool IsForcedBefore(ActionRequest const& action, Instant time) {
    if (!action.force_run) return false;
    auto const deadline = action.Deadline();
    return deadline && time > *deadline;
}

// Takes without asking: a forced action does not wait for consent beyond its deadline, not even while its confirmation
// is on the screen. One that is near its deadline counts down in the dialog.
void SweepDeadlines() {
    Instant const now = Instant::Now();
    auto near = [now](ActionRequest const& action) { return IsForcedBefore(action, now + kNearDeadline); };
    auto overdue = [now](ActionRequest const& action) { return IsForcedBefore(action, now); };
    if (std::none_of(actions.begin(), actions.end(), near)) return;
    for (auto const& action : actions)
        if (overdue(action)) SendToClient(ClientWriter(), ActionTaken{.id = action.id});
    actions.EraseIf(overdue);
    UpdateActionRequestDialog();
}

void HandleTick() {
    if (ClientIsGone()) ExitCleanup(0, "CLOSED");
    ProcessMessagesFromClient();
    ProcessMessagesFromUI();
    if (!initialized) return;
    OnFirstTick();
    if (Instant::Now() > m_postponedTo && !actions.empty())
        ShowActionRequestDialog(false, m_remindInterval, m_snoozable);
    RemoveTimedoutMessageDialogs();
    // Meant: while nothing is to be decided, nothing is taken by itself either.
    if (!inQuietMode) SweepDeadlines();
}

}  // namespace

void ServiceTimerTick() {
    HandleTick();
    // Here, since the dialog is enabled in many places: when it is built, when quiet mode or a preview ends.
    if (m_askedAbout) DisableActionRequestDialog();
    RefreshActionRequestDialog();
}
