#include <gtest/gtest.h>

#include <cstdlib>
#include <deque>
#include <set>
#include <unordered_set>

#include "core/core_test_support.h"
#include "core/process/ui_command.h"
#include "core/tick.h"

// Whatever the client says and the user presses, in every order, until nothing new comes of it. Of the dialogs only what
// can be pressed is left, and a snooze is over at once. Within a second the user comes first: what the client says
// changes no button before the tick. Two actions pending and two presses a second at most, or as CONSENT_DEPTH has it.

namespace {

using enum UICommandType;
std::size_t const kMost = std::getenv("CONSENT_DEPTH") ? std::stoul(std::getenv("CONSENT_DEPTH")) : 2;

struct State {
    bool enabled = false, question = false, notice = false, shown = false, said = false;
    std::string asks, way;                      // What the question is about, and what has been done up to here.
    std::set<std::string> agreed;               // The presses that still count, "take 1a" where 1a was asked about.
    std::vector<struct Button const*> presses;  // Those of this second.
    std::size_t accepted = 0;                   // One question after the other, with no word of the client.
    std::tuple<PendingActions, std::optional<ActionRequest>, bool> process;
} now;

struct Button {
    char const* name;
    bool State::*there;
    UICommandType queues;
    unsigned long long id = 0;
} const kButtons[] = {{"take 1", &State::enabled, Take, 1},
                      {"take 2", &State::enabled, Take, 2},
                      {"cancel 1", &State::enabled, Cancel, 1},
                      {"cancel 2", &State::enabled, Cancel, 2},
                      {"take all", &State::enabled, TakeAll},
                      {"snooze", &State::enabled, Snooze},
                      {"accept", &State::question, ConfirmationAccepted},
                      {"decline", &State::question, ConfirmationDeclined},
                      {"close notice", &State::notice, QuietNoticeClosed}};

std::string Key() {
    std::string key = std::to_string(now.accepted) + (m_askedAbout ? Short(*m_askedAbout) : "");
    for (bool is : {now.enabled, now.question, now.notice, now.shown, now.said, inQuietMode}) key += is ? ':' : '.';
    for (auto const& press : now.agreed) key += press;
    for (auto const* press : now.presses) key += press->name;
    for (auto const& action : actions) key += Short(action) + (action.force_run ? "! " : " ");
    auto const cursor = actions.TakeAllCursor();
    return key + (cursor ? std::to_string(std::distance(*cursor, actions.end())) : "-");
}

bool Press(Button const& button) {
    if (now.said || now.presses.size() == kMost || (button.id && !actions.FindAction(button.id))) return false;
    bool const accepts = button.queues == ConfirmationAccepted;
    if (button.queues == Snooze) now.shown = false;
    if (button.there != &State::notice) now.agreed.insert(accepts ? "take " + now.asks : button.name);
    if (button.queues == ConfirmationDeclined) now.agreed.clear();
    now.accepted += accepts;
    now.presses.push_back(&button);
    return std::exchange(now.*button.there, false);
}

bool Say(std::string const& line) {
    if (actions.size() == kMost && line.starts_with("request")) return false;
    Receive(line);
    now.accepted = 0;
    return now.said = true;
}

// What has gone, and nothing else, was answered: as agreed to, or by its deadline.
void CheckAnswers(std::map<ActionRequest const*, ActionRequest> const& gone, std::size_t reminders) {
    auto const replies = Replies();
    std::multiset<std::string> answers(replies.begin(), replies.end());
    auto const agreed = [](std::string const& press) { return now.agreed.contains(press); };
    for (auto const& [place, action] : gone) {
        auto const id = std::to_string(action.id);
        bool const plain = !action.pre_action_message, forced = action.force_run && !inQuietMode;
        bool const may_take = forced || agreed("take " + Short(action)) || (plain && agreed("take all"));
        bool const taken = may_take && answers.extract("taken" + id);
        EXPECT_TRUE(taken || (agreed("cancel " + id) && answers.extract("cancelled" + id))) << Short(action);
    }
    EXPECT_EQ(answers.size(), reminders) << "answers too many, or none to a snooze";
}

void Tick() {
    std::map<ActionRequest const*, ActionRequest> gone;
    for (auto const& action : actions) gone.emplace(&action, action);
    bool const snoozed = now.agreed.contains("snooze"), pressed = !now.presses.empty(), any = !gone.empty();
    for (auto const* press : std::exchange(now.presses, {})) QueueCommand(press->queues, press->id, 30, 0);
    ServiceTimerTick();
    for (auto const& action : actions) gone.erase(&action);
    CheckAnswers(gone, snoozed && any ? 2 : 0);
    EXPECT_EQ(now.question ? now.asks : "", m_askedAbout ? Short(*m_askedAbout) : "") << "is not on the screen";
    EXPECT_FALSE(now.question && now.enabled) << "beside a question something else can be decided";
    // Who answers and closes what there is can soon decide again, without the client: what is pressed opens the dialog or
    // a question, only who has pressed nothing may have a notice in the way, and the questions come to an end.
    EXPECT_TRUE(now.enabled || now.question || snoozed || (now.shown ? now.notice && !pressed : actions.empty()));
    EXPECT_TRUE(now.question || actions.empty() || !now.agreed.contains("take all")) << "not all are taken";
    EXPECT_LE(now.accepted, kMost + 1) << "asked anew and anew";
    if (!now.question) now.accepted = 0;
    if (!now.question || !now.agreed.contains("take all")) now.agreed.clear();
    m_postponedTo = Instant(0);
    now.said = false;
}

TEST(Consent, NothingIsTakenThatWasNotAgreedToWhateverIsSaidAndPressed) {
    initialized = true;
    std::vector<std::string> lines = {"remove action 1", "remove action 2", "quiet start=-1h end=+1h", "quiet end"};
    for (auto const* what : {"", " confirm=a", " confirm=b deadline=-1h", " confirm=a force deadline=-1h"})
        for (auto const* whose : {"request id=1", "request id=2"}) lines.push_back(std::string(whose) + what);
    auto process = std::tie(actions, m_askedAbout, inQuietMode);
    std::deque<State> next(1);
    std::unordered_set<std::string> seen;
    auto const explore = [&](std::string const& name, auto does) {
        process = (now = next.front()).process;
        if (HasFailure() || !does()) return;
        EXPECT_FALSE(HasFailure()) << now.way << name;
        if (!seen.insert(Key()).second) return;
        now.way += name + ", ";
        now.process = process;
        next.push_back(now);
    };
    for (; !next.empty(); next.pop_front()) {
        explore("tick", [] { return Tick(), true; });
        for (auto const& line : lines) explore(line, [&] { return Say(line); });
        for (auto const& button : kButtons) explore(button.name, [&] { return Press(button); });
    }
    EXPECT_GT(seen.size(), 100000u) << "the search has not come far";
}

}  // namespace

// In place of the dialogs that matter here; without a display the others do nothing.
#define STUB(function, body) function body
STUB(bool IsActionRequestDialogShown(), { return now.shown; })
STUB(void ShowActionRequestDialog(bool, TimeInterval const&, bool), { now.enabled |= !std::exchange(now.shown, true); })
STUB(void EnableActionRequestDialog(), { now.enabled = now.shown; })
STUB(void DisableActionRequestDialog(), { now.enabled = false; })
STUB(void ShowConfirmationRequestDialog(unsigned long long),
     { now.asks = std::exchange(now.question, true) ? now.asks : Short(*m_askedAbout); })
STUB(void ShowQuietModeDialog(Instant const&, Instant const&), { now.notice = true; })
STUB(void RemoveQuietModeDialog(), { now.notice = false; })
void ShowActionDetailsDialog(unsigned long long) {}
void UpdateActionRequestDialog() {}
void DrawAttentionToActionRequestDialog() {}
void ExpectActionRequestDialog() {}
void RefreshActionRequestDialog() {}
