#pragma once

// Which sentence describes an action or a set of actions.

enum class ActionFamily { One, Selected, Pending };

// The facts that decide.
struct SummaryFacts {
    bool save = false;
    bool restart = false;
    bool shutdown = false;
    bool has_deadline = false;
    bool soon = false;    // The deadline is less than five minutes away, or past.
    bool forced = false;  // The action runs by itself when its deadline has passed.
};

// The row of the family's sentences (action_sentences.h), 0 to 23.
int SummaryRow(ActionFamily family, SummaryFacts const& facts);
