#pragma once

#include "dialogs/toolkit/argument.h"
#include "dialogs/toolkit/widget.h"

// Making, changing and measuring widgets. Main thread only; sizes and positions are pixels.
//
// A widget belongs to its parent: destroying a shell destroys everything in it.

// A managed child of `parent`, with the resources of both lists. `name` is copied.
Widget Create(Widget parent, char const* name, WidgetClass kind, Arguments arguments = {}, Arguments more = {});

void SetResources(Widget widget, Arguments arguments);

int WidthOf(Widget widget);
int HeightOf(Widget widget);
int BorderWidthOf(Widget widget);

// `pixels` within what a size of the X protocol holds: 1 to 32,767.
int ClampedSize(int pixels);

// How wide the widest line of `text`, in the locale's encoding, is in an international label's font: right also where the
// label's own size has wrapped.
int TextWidth(Widget label, char const* text);

int DisplayWidthInPixels();

// Gives a managed widget a new width behind its parent's back and lets the parent lay it out again.
void Rewiden(Widget widget, int width);

// What becomes of a form's child when the window changes its size: it stays as it is at the top left, grows with the
// window, or keeps its distance from the bottom right corner. A form left to itself stretches all of them in proportion,
// buttons and gaps as well.
enum class Anchor { TopLeft, AllSides, BottomRight };
void AnchorInForm(Widget child, Anchor anchor);

void SetSensitive(Widget widget, bool sensitive);

// Shows or hides a managed widget without giving up its place.
void SetMapped(Widget widget, bool mapped);
