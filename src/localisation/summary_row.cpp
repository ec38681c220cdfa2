#include "localisation/summary_row.h"

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
