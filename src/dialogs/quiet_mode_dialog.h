#pragma once

#include "foundation/time/instant.h"

// The notice that nothing can be decided for a time, shown over the action request dialog. At most one exists at a time.
// Main thread only; without a display nothing is shown.

// Shows the notice for the period; while one stands, a second call does nothing.
void ShowQuietModeDialog(Instant const& start, Instant const& end);

// Closes the notice, if it stands, and tells nobody.
void RemoveQuietModeDialog();
