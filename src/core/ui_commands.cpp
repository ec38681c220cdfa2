#include "core/ui_commands.h"

#include <utility>

#include "core/process/client_writer.h"
#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_details_dialog.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/confirmation_dialog.h"

namespace {

void SendActionTaken(ActionRequest const& action, bool cancel) {
    SendToClient(ClientWriter(), ActionTaken{.is_cancel = cancel, .is_offer = false, .id = action.id});
}

void CompleteAction(PendingActions::Iterator action, bool cancel) {
    SendActionTaken(*action, cancel);
    actions.Erase(action);
    UpdateActionRequestDialog();
}

void TakeAllActions() {
    for (auto const& action : actions) SendActionTaken(action, false);
    actions.Clear();
    UpdateActionRequestDialog();
    EnableActionRequestDialog();
}

// Returns whether it has put the action's question.
bool RequestConfirmationIfNeeded(ActionRequest const& action) {
    if (!action.pre_action_message) return false;
    m_askedAbout = action;
    ShowConfirmationRequestDialog(action.id);
    return true;
}

void TakeAllFrom(PendingActions::Iterator action) {
    for (; action != actions.end(); ++action)
        if (RequestConfirmationIfNeeded(*action)) return actions.SetTakeAllCursor(action);
    TakeAllActions();
}

void TakeOne(unsigned long long id) {
    auto const action = actions.Find(id);
    if (action != actions.end()) {
        if (RequestConfirmationIfNeeded(*action)) return;
        CompleteAction(action, false);
    }
    EnableActionRequestDialog();
}

void CancelOne(unsigned long long id) {
    auto const action = actions.Find(id);
    if (action != actions.end()) CompleteAction(action, true);
    EnableActionRequestDialog();
}

bool SaysTheSame(ActionRequest const& one, ActionRequest const& other) {
    return one.title == other.title && one.pre_action_message == other.pre_action_message;
}

void AcceptOne(ActionRequest const& asked) {
    auto const action = actions.Find(asked.id);
    if (action != actions.end()) {
        if (SaysTheSame(*action, asked))
            CompleteAction(action, false);
        else if (RequestConfirmationIfNeeded(*action))
            return;
    }
    EnableActionRequestDialog();
}

// Without a question nothing is taken: nobody has read one.
void AcceptConfirmation() {
    auto const asked = std::exchange(m_askedAbout, std::nullopt);
    if (!asked) return EnableActionRequestDialog();
    if (auto const cursor = actions.TakeAllCursor()) return TakeAllFrom(*cursor);
    AcceptOne(*asked);
}

// Abandons the whole take-all, what was already confirmed included: that is meant.
void DeclineConfirmation() {
    m_askedAbout.reset();
    actions.EndTakeAll();
    EnableActionRequestDialog();
}

void PostponeUntil(Instant time) {
    m_postponedTo = time;
    SendToClient(ClientWriter(), RemindTime{TimeObject(time, TimeZone())});
}

// The dialog stays hidden: the button has hidden it.
void Snooze(UICommand const& command) {
    if (actions.empty()) return;
    auto const interval = TimeInterval::Minutes(command.Minutes());
    Instant const deadline = Instant(0) + TimeInterval::Seconds(command.DeadlineSeconds());
    PostponeUntil((command.Minutes() > 0 ? Instant::Now() : deadline) + interval);
    m_remindInterval = interval;
    SendToClient(ClientWriter(), RemindInterval{interval});
}

bool DecidesAboutActions(UICommandType type) {
    return type == UICommandType::TakeAll || type == UICommandType::Take || type == UICommandType::Cancel ||
           type == UICommandType::Snooze;
}

void HandleCommand(UICommand const& command) {
    if (m_askedAbout && DecidesAboutActions(command.Type())) return;
    switch (command.Type()) {
        case UICommandType::TakeAll:
            return TakeAllFrom(actions.begin());
        case UICommandType::ShowDetails:
            return ShowActionDetailsDialog(command.ActionID());
        case UICommandType::Cancel:
            return CancelOne(command.ActionID());
        case UICommandType::Take:
            return TakeOne(command.ActionID());
        case UICommandType::Snooze:
            return Snooze(command);
        case UICommandType::ConfirmationAccepted:
            return AcceptConfirmation();
        case UICommandType::ConfirmationDeclined:
            return DeclineConfirmation();
        case UICommandType::DetailsClosed:
        case UICommandType::QuietNoticeClosed:
            return EnableActionRequestDialog();
        case UICommandType::Show:
            ExpectActionRequestDialog();
            return ShowActionRequestDialog(false, m_remindInterval, m_snoozable);
    }
}

}  // namespace

void ProcessMessagesFromUI() {
    FiFoQueue<std::unique_ptr<UICommand>> commands;
    uiCommandQ.ReadMessages(commands);
    while (!commands.IsEmpty()) {
        auto const command = commands.TakeFront();
        try {
            HandleCommand(*command);
        } catch (...) {
            // The one command is lost; the next may still be carried out.
        }
    }
}
