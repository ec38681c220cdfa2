#include "core/ui_commands.h"

#include <optional>

#include "core/process/client_writer.h"
#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_details_dialog.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/confirmation_dialog.h"

namespace {

// The take-all in progress, if there is one: the next action to come to is at the pending list's cursor, and the last
// question put was about the action of this ID.
bool take_all_in_progress = false;
unsigned long long take_all_asked = 0;

// The action whose question was put last, as it was then.
std::optional<ActionRequest>& question = *new std::optional<ActionRequest>;

void SendActionTaken(ActionRequest const& action, bool cancel) {
    SendToClient(ClientWriter(), ActionTaken{.is_cancel = cancel, .is_offer = false, .id = action.id});
}

void CompleteAction(std::size_t position, bool cancel) {
    SendActionTaken(actions[position], cancel);
    actions.Erase(position);
    UpdateActionRequestDialog();
}

void TakeAllActions() {
    for (auto const& action : actions) SendActionTaken(action, false);
    actions.Clear();
    UpdateActionRequestDialog();
    EnableActionRequestDialog();
}

// Puts the question of the first action of this ID, unless another one stands.
void Ask(unsigned long long id) {
    if (!IsConfirmationRequestDialogShown()) question = *actions.FindAction(id);
    ShowConfirmationRequestDialog(id);
}

bool RequestConfirmationIfNeeded(ActionRequest const& action) {
    if (!action.pre_action_message) return false;
    Ask(action.id);
    return true;
}

// Whether the answer to the question of this ID counts for this action: not when it says something else than the one that
// the user was asked about, which the client has withdrawn meanwhile.
bool AnswerIsFor(ActionRequest const& action) {
    return !question || question->id != action.id ||
           (question->title == action.title && question->pre_action_message == action.pre_action_message);
}

void WalkOnWithTakeAll() {
    while (actions.TakeAllCursor() < actions.size()) {
        auto const& action = actions[actions.TakeAllCursor()];
        actions.SetTakeAllCursor(actions.TakeAllCursor() + 1);
        take_all_asked = action.id;
        take_all_in_progress = RequestConfirmationIfNeeded(action);
        if (take_all_in_progress) return;
    }
    take_all_in_progress = false;
    TakeAllActions();
}

// A question that stands is taken back: each is put in its turn, or the answer to one would count for another.
void TakeAll() {
    HideConfirmationRequestDialog();
    actions.SetTakeAllCursor(0);
    WalkOnWithTakeAll();
}

void TakeOne(unsigned long long id) {
    auto position = actions.Find(id);
    if (position < actions.size()) {
        if (RequestConfirmationIfNeeded(actions[position])) return;
        CompleteAction(position, false);
    }
    EnableActionRequestDialog();
}

void CancelOne(unsigned long long id) {
    auto position = actions.Find(id);
    if (position < actions.size()) CompleteAction(position, true);
    EnableActionRequestDialog();
}

// A confirmation counts for the action that it names. One that the take-all did not put was asked for beside it; the
// take-all's own question, which could not be shown meanwhile, is put again.
void AcceptDuringTakeAll(unsigned long long id) {
    if (id == take_all_asked) return WalkOnWithTakeAll();
    auto position = actions.Find(id);
    if (position < actions.size() && AnswerIsFor(actions[position])) CompleteAction(position, false);
    if (!actions.FindAction(take_all_asked)) return WalkOnWithTakeAll();
    Ask(take_all_asked);
}

// An action that has come in place of the one asked about is put to the user in its turn, or left to another decision.
void AcceptOne(unsigned long long id) {
    auto position = actions.Find(id);
    if (position < actions.size()) {
        if (AnswerIsFor(actions[position]))
            CompleteAction(position, false);
        else if (RequestConfirmationIfNeeded(actions[position]))
            return;
    }
    EnableActionRequestDialog();
}

void AcceptConfirmation(unsigned long long id) {
    if (take_all_in_progress)
        AcceptDuringTakeAll(id);
    else
        AcceptOne(id);
}

// Abandons the whole take-all, what was already confirmed included: that is meant.
void DeclineConfirmation() {
    take_all_in_progress = false;
    EnableActionRequestDialog();
}

void PostponeUntil(Instant time) {
    m_postponedTo = time;
    SendToClient(ClientWriter(), RemindTime{TimeObject(time, TimeZone())});
}

// The dialog stays hidden: the button has hidden it. Over an empty list that button closes: an action that came after
// it was pressed is not put off.
void Snooze(UICommand const& command) {
    if (actions.empty() || command.NothingWasPending()) return;
    auto interval = TimeInterval::Minutes(command.Minutes());
    Instant const deadline = Instant(0) + TimeInterval::Seconds(command.DeadlineSeconds());
    PostponeUntil((command.Minutes() > 0 ? Instant::Now() : deadline) + interval);
    m_remindInterval = interval;
    SendToClient(ClientWriter(), RemindInterval{interval});
}

void HandleCommand(UICommand const& command) {
    switch (command.Type()) {
        case UICommandType::TakeAll:
            return TakeAll();
        case UICommandType::ShowDetails:
            return ShowActionDetailsDialog(command.ActionID());
        case UICommandType::DetailsClosed:
            return EnableActionRequestDialog();
        case UICommandType::Cancel:
            return CancelOne(command.ActionID());
        case UICommandType::Take:
            return TakeOne(command.ActionID());
        case UICommandType::Snooze:
            return Snooze(command);
        case UICommandType::ConfirmationAccepted:
            return AcceptConfirmation(command.ActionID());
        case UICommandType::ConfirmationDeclined:
            return DeclineConfirmation();
        case UICommandType::QuietNoticeClosed:
            return EnableActionRequestDialog();
        case UICommandType::Show:
            return ShowActionRequestDialog(false, m_remindInterval, m_snoozable);
    }
}

}  // namespace

void ProcessMessagesFromUI() {
    FiFoQueue<std::unique_ptr<UICommand>> commands;
    uiCommandQ.ReadMessages(commands);
    while (!commands.IsEmpty()) {
        auto command = commands.TakeFront();
        try {
            HandleCommand(*command);
        } catch (...) {
            // The one command is lost; the next may still be carried out.
        }
    }
}
