#pragma once

// The preview of one pending action: its script, read-only, with one button. At most one exists at a time. Main thread
// only; without a display nothing is shown.

// Shows the script of the first pending action of this ID; an action without one gets an empty text. While the dialog
// stands, a second call does nothing. An ID that is no longer pending shows the script that was shown last: meant.
void ShowActionDetailsDialog(unsigned long long id);

// There is nothing to bring up to date: the script of an action does not change.
void UpdateActionDetailsDialog();

// Closes the dialog, if it stands, and tells nobody.
void HideActionDetailsDialog();
