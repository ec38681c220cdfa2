#include "core/ui_commands.h"

#include <optional>
#include <utility>

#include "core/process/client_writer.h"
#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_details_dialog.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/confirmation_dialog.h"
#include "foundation/base/never_destroyed.h"

namespace {

// Who has put a question: a take, the take-all in progress, or one before that.
enum class Asker { Take, TakeAll, FormerTakeAll };

struct Question {
    ActionRequest action;  // As it was when it was asked about.
    Asker asker;
};

// Waits for its answer: from when it is put until the answer is carried out, which is in a later tick than the press.
// Meanwhile no other is put, or the answer might count for one that nobody has read.
std::optional<Question>& question = NeverDestroyed<std::optional<Question>>();

// While a take-all is in progress, it comes next to the action at the pending list's cursor.
bool take_all_in_progress = false;

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

// Asks about the first action of this ID.
void Ask(unsigned long long id, Asker asker) {
    question = {*actions.FindAction(id), asker};
    ShowConfirmationRequestDialog(id);
}

void WalkOnWithTakeAll() {
    for (; actions.TakeAllCursor() < actions.size(); actions.SetTakeAllCursor(actions.TakeAllCursor() + 1)) {
        auto const& action = actions[actions.TakeAllCursor()];
        if (!action.pre_action_message) continue;
        take_all_in_progress = true;
        if (question) return;
        actions.SetTakeAllCursor(actions.TakeAllCursor() + 1);
        return Ask(action.id, Asker::TakeAll);
    }
    take_all_in_progress = false;
    TakeAllActions();
}

// A question that stands is taken back, and one of a take-all before this counts for nothing: each is put in its turn.
void TakeAll() {
    if (IsConfirmationRequestDialogShown()) question.reset();
    HideConfirmationRequestDialog();
    if (question && question->asker == Asker::TakeAll) question->asker = Asker::FormerTakeAll;
    actions.SetTakeAllCursor(0);
    WalkOnWithTakeAll();
}

void TakeOne(unsigned long long id) {
    auto position = actions.Find(id);
    if (position < actions.size()) {
        if (actions[position].pre_action_message) {
            if (!question) Ask(id, Asker::Take);
            return;
        }
        CompleteAction(position, false);
    }
    EnableActionRequestDialog();
}

void CancelOne(unsigned long long id) {
    auto position = actions.Find(id);
    if (position < actions.size()) CompleteAction(position, true);
    EnableActionRequestDialog();
}

// Whether the answer counts for this action by itself: not when it says something else than the one that the user was
// asked about, which the client has withdrawn meanwhile.
bool IsAnswered(ActionRequest const& action, std::optional<Question> const& answered) {
    return !answered || (answered->asker == Asker::Take && answered->action.title == action.title &&
                         answered->action.pre_action_message == action.pre_action_message);
}

// An action that has come in place of the one asked about is put to the user in its turn, or left to another decision.
void AcceptOne(unsigned long long id, std::optional<Question> const& answered) {
    auto position = actions.Find(id);
    if (position < actions.size()) {
        if (IsAnswered(actions[position], answered))
            CompleteAction(position, false);
        else if (actions[position].pre_action_message)
            return Ask(id, Asker::Take);
    }
    EnableActionRequestDialog();
}

// An answer to a take that was asked for beside the take-all counts by itself.
void AcceptDuringTakeAll(unsigned long long id, std::optional<Question> const& answered) {
    if (answered && answered->asker == Asker::Take) {
        auto position = actions.Find(id);
        if (position < actions.size() && IsAnswered(actions[position], answered)) CompleteAction(position, false);
    }
    WalkOnWithTakeAll();
}

void AcceptConfirmation(unsigned long long id) {
    auto const answered = std::exchange(question, std::nullopt);
    if (take_all_in_progress)
        AcceptDuringTakeAll(id, answered);
    else
        AcceptOne(id, answered);
}

// Abandons the whole take-all, what was already confirmed included: that is meant.
void DeclineConfirmation() {
    question.reset();
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
