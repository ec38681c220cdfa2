#include "localisation/action_summary.h"

#include <string_view>
#include <vector>

#include "localisation/action_sentences.h"
#include "localisation/deadline_text.h"
#include "localisation/uformat.h"

namespace {

enum class After { Nothing, Restart, Shutdown };
enum class DeadlineSentence { None, Within, Now, Automatic };

// Meant: for one action a restart hides a shutdown, for a set a shutdown hides a restart.
After AfterActions(ActionFamily family, SummaryFacts const& facts) {
    bool const restart_first = family == ActionFamily::One;
    if (facts.restart && (restart_first || !facts.shutdown)) return After::Restart;
    return facts.shutdown ? After::Shutdown : After::Nothing;
}

DeadlineSentence SentenceOf(SummaryFacts const& facts) {
    if (!facts.has_deadline) return DeadlineSentence::None;
    if (facts.forced) return DeadlineSentence::Automatic;
    return facts.soon ? DeadlineSentence::Now : DeadlineSentence::Within;
}

// The first of the two rows, without and with work to save.
int RowPair(After after, DeadlineSentence sentence) {
    int const action = static_cast<int>(after);
    switch (sentence) {
        case DeadlineSentence::None:
            return 4 * action;
        case DeadlineSentence::Within:
            return 4 * action + 2;
        case DeadlineSentence::Now:
            return 12 + 2 * action;
        case DeadlineSentence::Automatic:
            return 18 + 2 * action;
    }
    return 0;
}

}  // namespace

int SummaryRow(ActionFamily family, SummaryFacts const& facts) {
    auto after = AfterActions(family, facts);
    auto const sentence = SentenceOf(facts);
    // Meant: with a deadline to meet, the summary of all pending actions leaves the restart out.
    if (family == ActionFamily::Pending && after == After::Restart && sentence == DeadlineSentence::Within)
        after = After::Nothing;
    return RowPair(after, sentence) + (facts.save ? 1 : 0);
}

namespace {

struct Sentence {
    FormatPlusArguments<0> format;
    bool has_deadline_text;
};
using Family = std::vector<Sentence>;

Family MakeFamily(ActionSentences const& sentences) {
    Family family;
    for (std::string_view english : sentences)
        family.push_back({UFormat(english.data()), english.find("{DeadlineText}") != english.npos});
    return family;
}

Family const& SentencesOf(ActionFamily family) {
    switch (family) {
        case ActionFamily::One: {
            static Family const one = MakeFamily(kOneActionSentences);
            return one;
        }
        case ActionFamily::Selected: {
            static Family const selected = MakeFamily(kSelectedActionsSentences);
            return selected;
        }
        case ActionFamily::Pending:
            break;
    }
    static Family const pending = MakeFamily(kPendingActionsSentences);
    return pending;
}

AutoUString<UTF8> Render(ActionFamily family, SummaryFacts facts, Instant deadline) {
    Instant const now = Instant::Now();
    facts.soon = facts.has_deadline && deadline < now + kNearDeadline;
    auto const& sentence = SentencesOf(family)[static_cast<std::size_t>(SummaryRow(family, facts))];
    if (!sentence.has_deadline_text) return MakeUString(sentence.format);
    auto text = FormattedDeadline(deadline, now, facts.forced, false);
    return MakeUString(FormatPlusArguments<1>(sentence.format, text));
}

}  // namespace

AutoUString<UTF8> ActionSummary(ActionRequest const& action) {
    auto const deadline = action.Deadline();
    SummaryFacts facts{.save = action.request_save,
                       .restart = action.restart,
                       .shutdown = action.shutdown,
                       .has_deadline = !deadline.IsNull(),
                       .forced = action.force_run};
    return Render(ActionFamily::One, facts, deadline ? *deadline : Instant());
}

AutoUString<UTF8> ActionSummary(std::set<unsigned long long> const& ids, ActionRequestStore const& store,
                                bool pending) {
    SummaryFacts facts;
    Instant earliest{INT64_MAX};
    for (auto id : ids) {
        ActionRequest const& action = store.GetAction(id);
        facts.save |= action.request_save;
        facts.restart |= action.restart;
        facts.shutdown |= action.shutdown;
        auto const deadline = action.Deadline();
        if (!deadline || (facts.has_deadline && *deadline >= earliest)) continue;
        facts.has_deadline = true;
        facts.forced = action.force_run;
        earliest = *deadline;
    }
    return Render(pending ? ActionFamily::Pending : ActionFamily::Selected, facts, earliest);
}
