#pragma once

#include "dialogs/toolkit/argument.h"
#include "dialogs/toolkit/scroll_bars.h"
#include "dialogs/toolkit/widget.h"

// A text that is read and scrolled by the pointer, never edited: wrapped by words, its vertical scroll bar always there.
// `text`, in the locale's encoding, is copied. `arguments` adds what is particular. Main thread only.
Widget CreateReadOnlyText(Widget parent, char const* name, char const* text, Arguments arguments);

// Replaces the text; the view starts at its beginning again.
void SetText(Widget readOnlyText, char const* text);
