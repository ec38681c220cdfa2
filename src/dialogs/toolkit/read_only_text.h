#pragma once

#include "dialogs/toolkit/widgets.h"

// The scroll bars of viewports and texts. Main thread only.

// The vertical scroll bar of a viewport, or null: it exists only while the viewport is realised and its child is taller
// than it.
Widget VerticalScrollbar(Widget viewport);

// The vertical scroll bar of a text, or null. It is no named child that could be looked up.
Widget TextScrollbar(Widget text);

// Lets buttons 1 and 3 both drag the thumb continuously. A null scroll bar is left alone.
void OverrideScrollbarTranslations(Widget scrollbar);

// Lets the user scroll an insensitive text: the scroll bar would share the text's deafness to the pointer.
void MakeScrollable(Widget insensitiveText);

// Scrolls so that the highlighted row of `list`, if there is one, stands at the top of `viewport`, as far as the bar can
// go.
void ScrollSelectedItemIntoView(Widget viewport, Widget list);

// A text that is read and scrolled by the pointer, never edited: wrapped by words, its vertical scroll bar always there.
// `text`, in the locale's encoding, is copied. `arguments` adds what is particular. Main thread only.
Widget CreateReadOnlyText(Widget parent, char const* name, char const* text, Arguments arguments);

// Replaces the text. The view starts at its beginning again, or at the character where it is, if there is still
// one: for a text that goes on while it is read.
enum class View { FromTheBeginning, Kept };
void SetText(Widget readOnlyText, char const* text, View view = View::FromTheBeginning);
