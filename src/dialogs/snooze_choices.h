#pragma once

#include <vector>

#include "foundation/text/shared_ustring.h"
#include "foundation/time/instant.h"

// One way to snooze: what the user reads and what it means. Positive minutes count from now, negative ones back from the
// earliest deadline.
struct SnoozeChoice {
    SharedUString<UTF8> label;
    int minutes;
};

// The choices in display order, translated; those before the deadline only if there is one. None is withheld because it
// would end after the deadline.
std::vector<SnoozeChoice> MakeSnoozeChoices(bool any_deadline);

// The row that is proposed for the interval: the search goes down the rows and stops at the first that is no closer than
// the one before it. Meant: the rows ascend, so this is the closest, the earlier of two equally close. `choices` must not
// be empty.
int DefaultSnoozeRow(std::vector<SnoozeChoice> const& choices, TimeInterval interval);
