#pragma once

#include "dialogs/toolkit/widget.h"

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
