#include "localisation/action_summary.h"

#include <optional>
#include <string_view>
#include <vector>

#include "localisation/action_sentences.h"
#include "localisation/deadline_text.h"
#include "localisation/uformat.h"

namespace {

enum class Family { One, Selected, Pending };
enum class After { Nothing, Restart, Shutdown };
enum class Due { Never, Within, Now, Automatically };

// What there is to tell of one action or of several.
struct Facts {
    bool save = false;
    bool restart = false;
    bool shutdown = false;
    std::optional<Instant> deadline;  // the earliest
    bool forced = false;              // the action that has it runs by itself then
};

void Add(ActionRequest const& action, Facts& facts) {
    facts.save |= action.request_save;
    facts.restart |= action.restart;
    facts.shutdown |= action.shutdown;
    auto const deadline = action.Deadline();
    if (!deadline || (facts.deadline && *deadline >= *facts.deadline)) return;
    facts.deadline = *deadline;
    facts.forced = action.force_run;
}

// Meant: for one action a restart hides a shutdown, for several a shutdown hides a restart.
After AfterActions(Family family, Facts const& facts) {
    if (facts.restart && (family == Family::One || !facts.shutdown)) return After::Restart;
    return facts.shutdown ? After::Shutdown : After::Nothing;
}

Due DueAt(Facts const& facts, Instant now) {
    if (!facts.deadline) return Due::Never;
    if (facts.forced) return Due::Automatically;
    return *facts.deadline < now + kNearDeadline ? Due::Now : Due::Within;
}

std::size_t RowOf(Family family, Facts const& facts, Instant now) {
    // By After and Due, without work to save; the row with it follows.
    static constexpr std::size_t kRows[3][4] = {{0, 2, 12, 18}, {4, 6, 14, 20}, {8, 10, 16, 22}};
    auto after = AfterActions(family, facts);
    auto const due = DueAt(facts, now);
    // Meant: with a deadline to meet, the summary of all pending actions leaves the restart out.
    if (family == Family::Pending && after == After::Restart && due == Due::Within) after = After::Nothing;
    return kRows[static_cast<int>(after)][static_cast<int>(due)] + (facts.save ? 1 : 0);
}

struct Sentence {
    FormatPlusArguments<0> format;
    bool has_deadline_text;
};

std::vector<Sentence> Translated(ActionSentences const& sentences) {
    std::vector<Sentence> translated;
    for (std::string_view english : sentences)
        translated.push_back({UFormat(english.data()), english.find("{DeadlineText}") != english.npos});
    return translated;
}

std::vector<Sentence> const& SentencesOf(Family family) {
    static ActionSentences const* const english[] = {&kOneActionSentences, &kSelectedActionsSentences,
                                                     &kPendingActionsSentences};
    static std::vector<Sentence> translated[3];
    auto const index = static_cast<std::size_t>(family);
    if (translated[index].empty()) translated[index] = Translated(*english[index]);
    return translated[index];
}

AutoUString<UTF8> Summary(Family family, Facts const& facts) {
    auto const now = Instant::Now();
    auto const& sentence = SentencesOf(family)[RowOf(family, facts, now)];
    if (!sentence.has_deadline_text) return MakeUString(sentence.format);
    return MakeUString(sentence.format.With(FormattedDeadline(*facts.deadline, now, facts.forced, false)));
}

}  // namespace

AutoUString<UTF8> ActionSummary(ActionRequest const& action) {
    Facts facts;
    Add(action, facts);
    return Summary(Family::One, facts);
}

AutoUString<UTF8> ActionSummary(std::set<unsigned long long> const& ids, ActionRequestStore const& store,
                                bool pending) {
    Facts facts;
    for (auto id : ids) Add(store.GetAction(id), facts);
    return Summary(pending ? Family::Pending : Family::Selected, facts);
}
