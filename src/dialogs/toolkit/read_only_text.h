#pragma once

#include "dialogs/toolkit/focus_ring.h"

// Texts that are read and scrolled by the pointer, never edited: wrapped by words, with a vertical scroll bar that is
// always there. All text is in the locale's encoding; carriage returns before line feeds are not shown. Main thread only.

// `text` is copied; `arguments` adds what is particular.
Widget CreateReadOnlyText(Widget parent, char const* name, char const* text, Arguments arguments);

// Replaces the text. The view starts at its beginning again, or at the character where it is, if there is still
// one: for a text that goes on while it is read.
enum class View { FromTheBeginning, Kept };
void SetText(Widget text_widget, char const* text, View view = View::FromTheBeginning);

// Lets the user drag the thumb, and scroll an insensitive text as well: its scroll bar would share its deafness to the
// pointer. Once the text is realised.
void MakeScrollable(Widget text_widget);

// Scrolls by so many lines, or a page, or to an end.
void ScrollText(Widget text_widget, Move move, int lines);

// Lets buttons 1 and 3 both drag the thumb of a scroll bar continuously. A null one is left alone.
void OverrideScrollbarTranslations(Widget scrollbar);
