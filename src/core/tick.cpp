#include "core/tick.h"

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

enum class Overdue { No, Soon, Yes };

Overdue DeadlineOf(ActionRequest const& action, Instant now) {
    if (!action.force_run) return Overdue::No;
    auto deadline = action.Deadline();
    if (!deadline) return Overdue::No;
    if (now > *deadline) return Overdue::Yes;
    return now + kNearDeadline > *deadline ? Overdue::Soon : Overdue::No;
}

// Takes without asking: a forced action does not wait for consent beyond its deadline, not even while its confirmation
// is on the screen.
void SweepDeadlines() {
    Instant const now = Instant::Now();
    bool refresh = false;
    actions.EraseIf([&](ActionRequest const& action) {
        auto const overdue = DeadlineOf(action, now);
        refresh |= overdue != Overdue::No;
        if (overdue == Overdue::Yes) SendToClient(ClientWriter(), ActionTaken{.id = action.id});
        return overdue == Overdue::Yes;
    });
    if (refresh) UpdateActionRequestDialog();
}

void OnFirstTick() {
    static bool first = true;
    if (!std::exchange(first, false)) return;
    CreateHiddenWindow();
    OpenWaitingMessageDialogs();
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
    RefreshActionRequestDialog();
}
