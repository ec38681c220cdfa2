#pragma once

// The question before an action that needs the user's consent: the action's title, the text to acknowledge, "OK" and
// "Cancel". At most one exists at a time. Main thread only; without a display nothing is shown.

// Asks about the action of this ID that `m_askedAbout` holds, or the first pending one where it holds none. While a
// question stands, a second call does nothing: the first keeps the screen and its ID. An ID that is not pending shows
// empty texts, and its buttons answer all the same.
void ShowConfirmationRequestDialog(unsigned long long id);

// There is nothing to bring up to date: the texts of an action do not change.
void UpdateConfirmationRequestDialog();

// Closes the question, if it stands, and tells nobody.
void HideConfirmationRequestDialog();
