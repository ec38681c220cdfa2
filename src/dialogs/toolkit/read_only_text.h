#pragma once

#include "dialogs/toolkit/argument.h"
#include "dialogs/toolkit/scroll_bars.h"
#include "dialogs/toolkit/widget.h"

// A text that is read and scrolled by the pointer, never edited: wrapped by words, its vertical scroll bar always there.
// `text`, in the locale's encoding, is copied. `arguments` adds what is particular. Main thread only.
Widget CreateReadOnlyText(Widget parent, char const* name, char const* text, Arguments arguments);

// Replaces the text. The view starts at its beginning again, or at the character where it is, if there is still
// one: for a text that goes on while it is read.
enum class View { FromTheBeginning, Kept };
void SetText(Widget readOnlyText, char const* text, View view = View::FromTheBeginning);
