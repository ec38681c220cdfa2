#pragma once

#include "dialogs/toolkit/widgets.h"
#include "foundation/time/instant.h"

// The main window: the pending actions, what they involve, and what the user can do about them. At most one exists at a
// time. Every decision becomes one UI command; the dialog itself never talks to the client. Main thread only; every
// function here is harmless without a display and without the dialog.
//
// The selected row is an index: it stays when the dialog is hidden and shown again and when rows are removed, and may
// come to mean another action. That is meant; an index beyond the rows becomes none.

// Builds and shows the dialog; while it stands, nothing changes. `remind_interval` is proposed for snoozing, `snoozable`
// tells whether the user may snooze at all. The first argument is unused.
void ShowActionRequestDialog(bool, TimeInterval const& remind_interval, bool snoozable);

// The user has asked for the dialog: if the next call shows it, it takes the keyboard.
void ExpectActionRequestDialog();

// Asks the window manager to draw the user's attention to the dialog, as to one that has something new to show, until it
// gets the keyboard.
void DrawAttentionToActionRequestDialog();

// Destroys the dialog.
void HideActionRequestDialog();

// Asks for the pending list to be read again and shown; ignored while the dialog is disabled, so that the list does not
// change under a decision.
void UpdateActionRequestDialog();

// Carries out what was asked for since the last call: once a tick, however many requests came in it, so that a burst of
// them costs no more than its size. Throws NoSelectedAction (action_request_contents.h). A text that cannot be shown is
// reported like a dialog that cannot be built, and ends the process.
void RefreshActionRequestDialog();

// Lets the user decide, or not: all buttons and both lists together. Enabling brings the dialog up to date.
void EnableActionRequestDialog();
void DisableActionRequestDialog();

// The dialog's shell, for windows that stand over it, or null.
Widget ActionRequestDialogShell();
bool IsActionRequestDialogShown();
bool IsActionRequestDialogEnabled();
