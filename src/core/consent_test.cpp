#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <map>
#include <set>
#include <tuple>
#include <unordered_set>

#include "core/client_messages.h"
#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "core/tick.h"
#include "dialogs/action_details_dialog.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/confirmation_dialog.h"
#include "dialogs/message_dialogs.h"
#include "dialogs/quiet_mode_dialog.h"
#include "dialogs/x_application.h"
#include "tools/client_messages.h"

// Whatever the client says and the user presses, in every order, until nothing new comes of it: with two actions pending
// and two presses a second at most. Of the dialogs only what can be pressed is left, and a snooze is over at once. Within
// a second the user comes first: what the client says changes no button before the tick.

namespace {

using Type = UICommandType;

struct State {
    bool enabled = false, question = false, notice = false, details = false, open = true;  // What can be pressed,
    bool shown = false, said = false, quiet = false;                                       // and what else is so.
    std::string asks;                // What the question on the screen is about.
    std::set<std::string> accepted;  // The questions whose acceptance still counts.
    std::vector<std::pair<Type, unsigned long long>> presses;
    PendingActions pending;
    std::optional<ActionRequest> asked;
};
State now;

std::string complaint;
void Require(bool condition, char const* otherwise) {
    if (!condition && complaint.empty()) complaint = otherwise;
}

// Its ID and its confirmation text.
std::string Short(ActionRequest const& action) {
    auto const& text = action.pre_action_message;
    return std::to_string(action.id) + (text ? std::string(text->Ref().AsStringView()) : "");
}

std::string Key() {
    std::string key = now.asks + ";" + (m_askedAbout ? Short(*m_askedAbout) : "") + ";";
    for (bool is : {now.enabled, now.question, now.notice, now.details, now.open, now.shown, now.said, inQuietMode})
        key += is ? '1' : '0';
    auto const cursor = actions.TakeAllCursor();
    key += cursor ? std::to_string(std::distance(*cursor, actions.end())) : "9";
    for (auto const& action : actions) key += Short(action) + (action.force_run ? "! " : " ");
    for (auto const& [type, id] : now.presses) key += std::to_string(100 * static_cast<unsigned>(type) + id) + " ";
    for (auto const& text : now.accepted) key += "," + text;
    return key;
}

// What a tick has answered, from the list that it has met: each answer was asked for, and what is gone has one.
void CheckAnswers(std::vector<ActionRequest> pending, bool quiet, std::set<Type> const& pressed) {
    bool const taken =
        pressed.contains(Type::TakeAll) || pressed.contains(Type::Take) || pressed.contains(Type::ConfirmationAccepted);
    bool snoozed = pending.empty();
    FiFoQueue<UIMessage> sent;
    for (writeQ.ReadMessages(sent); !sent.IsEmpty();) {
        auto answer = tools::ReadAnswer(sent.TakeFront().Text().AsStringView()).fields;
        snoozed |= !answer.contains("ID");
        if (!answer.contains("ID")) continue;
        auto const found = std::find_if(pending.begin(), pending.end(), [&](ActionRequest const& action) {
            if (std::to_string(action.id) != answer["ID"]) return false;
            if (answer["IsCancel"] == "true") return pressed.contains(Type::Cancel);
            bool const agreed = !action.pre_action_message || now.accepted.contains(Short(action));
            return (taken && agreed) || (action.force_run && !quiet);
        });
        if (found == pending.end()) return Require(false, "an answer that nobody has agreed to, or one too many");
        pending.erase(found);
    }
    auto same = [](auto const& one, auto const& other) { return Short(one) == Short(other); };
    Require(std::equal(pending.begin(), pending.end(), actions.begin(), actions.end(), same), "no answer");
    Require(snoozed || !pressed.contains(Type::Snooze), "no answer to a snooze");
}

bool Tick() {
    std::vector<ActionRequest> const before(actions.begin(), actions.end());
    bool const quiet = inQuietMode;
    std::set<Type> pressed;
    for (auto [type, id] : std::exchange(now.presses, {})) QueueCommand(*pressed.insert(type).first, id, 30, 0);
    ServiceTimerTick();
    CheckAnswers(before, quiet, pressed);
    Require(now.question == m_askedAbout.has_value(), "what is asked about is not on the screen");
    Require(!now.question || !now.enabled, "beside a question something else can be decided");
    Require(!now.shown || now.enabled || now.question || now.notice || now.details, "nothing can be pressed");
    if (!actions.TakeAllCursor()) now.accepted.clear();
    m_postponedTo = Instant(0);
    now.said = false;
    return now.open = true;
}

struct Letter {
    char const* name;  // That of what the client says is a line of the scripted client.
    bool State::*button = nullptr;
    Type type = Type::Show;
    unsigned long long id = 0;
};
Letter const kLetters[] = {
    {"tick"},
    {"request id=1"},
    {"request id=1 confirm=a"},
    {"request id=1 confirm=b"},
    {"request id=2 confirm=a"},
    {"request id=2 confirm=a force deadline=-1h"},
    {"remove action 1"},
    {"remove action 2"},
    {"quiet start=-1h end=+1h"},
    {"quiet end"},
    {"take all", &State::enabled, Type::TakeAll},
    {"take 1", &State::enabled, Type::Take, 1},
    {"take 2", &State::enabled, Type::Take, 2},
    {"cancel 1", &State::enabled, Type::Cancel, 1},
    {"cancel 2", &State::enabled, Type::Cancel, 2},
    {"details 1", &State::enabled, Type::ShowDetails, 1},
    {"snooze", &State::enabled, Type::Snooze},
    {"accept", &State::question, Type::ConfirmationAccepted},
    {"decline", &State::question, Type::ConfirmationDeclined},
    {"close notice", &State::notice, Type::QuietNoticeClosed},
    {"close details", &State::details, Type::DetailsClosed},
    {"open", &State::open, Type::Show},
};

// Like Say, tells whether that could be done.
bool Press(Letter const& letter) {
    if (now.said || now.presses.size() == 2 || (letter.id && !actions.FindAction(letter.id))) return false;
    if (!std::exchange(now.*letter.button, false)) return false;
    if (letter.type == Type::Snooze) now.shown = false;
    if (letter.type == Type::ConfirmationAccepted) now.accepted.insert(now.asks);
    if (letter.type == Type::ConfirmationDeclined) now.accepted.clear();
    if (letter.button == &State::question) now.asks.clear();
    now.presses.emplace_back(letter.type, letter.id);
    return true;
}

bool Say(char const* line) {
    static std::map<char const*, std::string> documents;
    auto& document = documents[line];
    if (document.empty()) document = tools::Document(tools::MessageFor(tools::ParseScenarioLine(line), {}));
    if (actions.size() == 2 && document.find("ActionRequest") != document.npos) return false;
    readQ.WriteMessage(UIMessage(UStringRef<UTF8>(document)));
    ProcessMessagesFromClient();
    return now.said = true;
}

// Whatever stands on the screen can be closed, and then the user can decide. What else is wrong on that way is left to be
// found by itself, with all of its steps.
void CheckThatTheUserCanGoOn() {
    for (int ticks = 0; ticks < 3; ++ticks, Tick())
        for (auto const& letter : kLetters)
            if (letter.button && letter.button != &State::enabled) Press(letter);
    complaint = now.enabled ? "" : "the user can never decide again";
}

TEST(Consent, NothingIsTakenThatWasNotAgreedToWhateverIsSaidAndPressed) {
    initialized = true;
    auto kept = std::tie(now.pending, now.asked, now.quiet);
    auto used = std::tie(actions, m_askedAbout, inQuietMode);
    std::vector<std::pair<std::size_t, char const*>> steps(1);
    std::deque<State> next(1);
    std::unordered_set<std::string> seen;
    for (std::size_t from = 0; !next.empty(); ++from, next.pop_front()) {
        for (auto const& letter : kLetters) {
            now = next.front();
            used = kept;
            bool const done = letter.button ? Press(letter) : &letter == kLetters ? Tick() : Say(letter.name);
            if (!done || (complaint.empty() && !seen.insert(Key()).second)) continue;
            kept = used;
            next.push_back(now);
            steps.emplace_back(from, letter.name);
            if (&letter == kLetters && complaint.empty()) CheckThatTheUserCanGoOn();
            if (complaint.empty()) continue;
            std::string way;
            for (auto at = steps.size() - 1; at; at = steps[at].first) way = ", " + (steps[at].second + way);
            FAIL() << complaint << way;
        }
    }
    EXPECT_GT(seen.size(), 100000u) << "the search has not come far";
}

}  // namespace

void ShowActionRequestDialog(bool, TimeInterval const&, bool) {
    if (!std::exchange(now.shown, true)) now.enabled = true;
}
void EnableActionRequestDialog() {
    now.enabled = now.shown;
}
void DisableActionRequestDialog() {
    now.enabled = false;
}
bool IsActionRequestDialogShown() {
    return now.shown;
}
void ShowActionDetailsDialog(unsigned long long) {
    now.details = true;
}
void ShowConfirmationRequestDialog(unsigned long long) {
    if (!std::exchange(now.question, true)) now.asks = Short(*m_askedAbout);
}
void ShowQuietModeDialog(Instant const&, Instant const&) {
    now.notice = true;
}
void RemoveQuietModeDialog() {
    now.notice = false;
}
void UpdateActionRequestDialog() {}
void DrawAttentionToActionRequestDialog() {}
void ExpectActionRequestDialog() {}
void RefreshActionRequestDialog() {}
void ShowMessageDialog(MessageRequest const&) {}
void RemoveMessageDialog(unsigned long long) {}
void RemoveTimedoutMessageDialogs() {}
void OpenWaitingMessageDialogs() {}
void CreateHiddenWindow() {}
