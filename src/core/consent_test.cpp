#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <set>
#include <unordered_set>

#include "core/client_messages.h"
#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "core/tick.h"
#include "tools/client_messages.h"

// Whatever the client says and the user presses, in every order, until nothing new comes of it: with two actions pending
// and two presses a second at most. Of the dialogs only what can be pressed is left, and a snooze is over at once. Within
// a second the user comes first: what the client says changes no button before the tick.

namespace {

using enum UICommandType;

struct State {
    bool enabled = false, question = false, notice = false, details = false, open = true;  // What can be pressed,
    bool shown = false, said = false;                                                      // and what else is so.
    std::string asks, way;                      // What the question is about, and what has been done up to here.
    std::set<std::string> agreed;               // What may be answered, in short.
    std::vector<struct Letter const*> presses;  // Those of this second.
    std::tuple<PendingActions, std::optional<ActionRequest>, bool> process;
} now;

struct Letter {
    char const* name;  // That of what the client says is a line of the scripted client.
    bool State::*button = nullptr;
    UICommandType type = Show;
    unsigned long long id = 0;
    std::set<std::string> agrees = {};
    std::string document = tools::Document(tools::MessageFor(tools::ParseScenarioLine(name)));
};

// Its ID and its confirmation text.
std::string Short(ActionRequest const& action) {
    auto const& asks = action.pre_action_message;
    return std::to_string(action.id).append(asks ? asks->Ref().AsStringView() : "");
}

std::string Key() {
    std::string key = (now.question ? now.asks : "") + ";" + (m_askedAbout ? Short(*m_askedAbout) : "") + ";";
    for (bool is : {now.enabled, now.question, now.notice, now.details, now.open, now.shown, now.said, inQuietMode})
        key += is ? '1' : '0';
    for (auto const& agreed : now.agreed) key += agreed + ",";
    for (auto const* press : now.presses) key += press->name;
    for (auto const& action : actions) key += Short(action) + (action.force_run ? "! " : " ");
    auto const cursor = actions.TakeAllCursor();
    return key + (cursor ? std::to_string(std::distance(*cursor, actions.end())) : "-");
}

// What a tick has answered: each answer was agreed to, and what is gone has one.
void CheckAnswers() {
    auto const& [pending, asked, quiet] = now.process;  // From before the tick.
    std::vector<ActionRequest> left(pending.begin(), pending.end());
    FiFoQueue<UIMessage> sent;
    for (writeQ.ReadMessages(sent); !sent.IsEmpty();) {
        auto answer = tools::ReadAnswer(sent.TakeFront().Text().AsStringView()).fields;
        auto const answered = std::ranges::find_if(left, [&](ActionRequest const& action) {
            auto const id = std::to_string(action.id), meant = answer["IsCancel"] == "true" ? "-" + id : Short(action);
            return answer["ID"] == id && (now.agreed.contains(meant) || (action.force_run && !quiet));
        });
        EXPECT_TRUE(answered != left.end() || answer["ID"].empty()) << "nobody has agreed to this, or not twice";
        if (answered != left.end()) left.erase(answered);
    }
    auto const same = [](ActionRequest const& one, ActionRequest const& other) { return Short(one) == Short(other); };
    EXPECT_TRUE(std::equal(left.begin(), left.end(), actions.begin(), actions.end(), same)) << "no answer";
}

bool Tick() {
    for (auto const* press : std::exchange(now.presses, {})) QueueCommand(press->type, press->id, 30, 0);
    ServiceTimerTick();
    CheckAnswers();
    EXPECT_EQ(now.question, m_askedAbout.has_value()) << "what is asked about is not on the screen";
    EXPECT_FALSE(now.question && now.enabled) << "beside a question something else can be decided";
    EXPECT_TRUE(!now.shown || now.enabled || now.question || now.notice || now.details) << "nothing can be pressed";
    if (!actions.TakeAllCursor()) now.agreed.clear();
    m_postponedTo = Instant(0);
    now.said = false;
    return now.open = true;
}

// Whether that can be done.
bool Do(Letter const& letter) {
    if (!letter.button) {
        if (actions.size() == 2 && letter.document.find("ActionRequest") != std::string::npos) return false;
        readQ.WriteMessage(UIMessage(UStringRef<UTF8>(letter.document)));
        ProcessMessagesFromClient();
        return now.said = true;
    }
    if (now.said || now.presses.size() == 2 || (letter.id && !actions.FindAction(letter.id))) return false;
    if (letter.type == Snooze) now.shown = false;
    if (letter.type == ConfirmationDeclined) now.agreed.clear();
    if (letter.type == ConfirmationAccepted) now.agreed.insert(now.asks);
    now.agreed.insert(letter.agrees.begin(), letter.agrees.end());
    now.presses.push_back(&letter);
    return std::exchange(now.*letter.button, false);
}

TEST(Consent, NothingIsTakenThatWasNotAgreedToWhateverIsSaidAndPressed) {
    initialized = true;
    Letter const letters[] = {{"tick"},
                              {"request id=1"},
                              {"request id=1 confirm=a"},
                              {"request id=1 confirm=b"},
                              {"request id=2 confirm=a"},
                              {"request id=2 confirm=a force deadline=-1h"},
                              {"remove action 1"},
                              {"quiet start=-1h end=+1h"},
                              {"quiet end"},
                              {"take all", &State::enabled, TakeAll, 0, {"1", "2"}},
                              {"take 1", &State::enabled, Take, 1, {"1"}},
                              {"take 2", &State::enabled, Take, 2, {"2"}},
                              {"cancel 1", &State::enabled, Cancel, 1, {"-1"}},
                              {"details 1", &State::enabled, ShowDetails, 1},
                              {"snooze", &State::enabled, Snooze},
                              {"accept", &State::question, ConfirmationAccepted},
                              {"decline", &State::question, ConfirmationDeclined},
                              {"close notice", &State::notice, QuietNoticeClosed},
                              {"close details", &State::details, DetailsClosed},
                              {"open", &State::open, Show}};
    auto process = std::tie(actions, m_askedAbout, inQuietMode);
    std::deque<State> next(1);
    std::unordered_set<std::string> seen;
    for (; !next.empty(); next.pop_front()) {
        for (auto const& letter : letters) {
            process = (now = next.front()).process;
            now.way.append(", ").append(letter.name);
            SCOPED_TRACE(now.way);
            bool const done = &letter == letters ? Tick() : Do(letter);
            if (HasFailure()) return;
            if (!done || !seen.insert(Key()).second) continue;
            now.process = process;
            next.push_back(now);
        }
    }
    EXPECT_GT(seen.size(), 100000u) << "the search has not come far";
}

}  // namespace

// In place of the dialogs.
#define DIALOG(function, does) \
    function {                 \
        does;                  \
    }
DIALOG(bool IsActionRequestDialogShown(), return now.shown)
DIALOG(void ShowActionRequestDialog(bool, TimeInterval const&, bool), now.enabled |= !std::exchange(now.shown, true))
DIALOG(void EnableActionRequestDialog(), now.enabled = now.shown)
DIALOG(void DisableActionRequestDialog(), now.enabled = false)
DIALOG(void ShowActionDetailsDialog(unsigned long long), now.details = true)
DIALOG(void ShowConfirmationRequestDialog(unsigned long long),
       now.asks = std::exchange(now.question, true) ? now.asks : Short(*m_askedAbout))
DIALOG(void ShowQuietModeDialog(Instant const&, Instant const&), now.notice = true)
DIALOG(void RemoveQuietModeDialog(), now.notice = false)
void UpdateActionRequestDialog() {}
void DrawAttentionToActionRequestDialog() {}
void ExpectActionRequestDialog() {}
void RefreshActionRequestDialog() {}
void ShowMessageDialog(MessageRequest const&) {}
void RemoveMessageDialog(unsigned long long) {}
void RemoveTimedoutMessageDialogs() {}
void OpenWaitingMessageDialogs() {}
void CreateHiddenWindow() {}
