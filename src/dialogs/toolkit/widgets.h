#pragma once

#include <initializer_list>
#include <type_traits>

// Xt's names for a widget and for a widget class, repeated so that headers need no X header.
struct _WidgetRec;
using Widget = _WidgetRec*;
struct _WidgetClassRec;
using WidgetClass = _WidgetClassRec*;

// One resource name and its value, as a widget is given them.
//
// The constructors admit exactly the kinds of value that the resources of this program's widgets hold; any other type
// does not compile. A string is borrowed for the call: labels, titles and texts are copied by their widgets, a list's
// rows are not (see ListRows).
class Argument {
  public:
    // Pixels, counts and positions. The toolkit keeps sizes in 16 bits: see ClampedSize.
    Argument(char const* name, int value) : name_(name), value_(value) {}
    Argument(char const* name, bool value) : name_(name), value_(value) {}
    Argument(char const* name, char const* value) : name_(name), value_(reinterpret_cast<long>(value)) {}
    Argument(char const* name, char const* const* value) : name_(name), value_(reinterpret_cast<long>(value)) {}
    Argument(char const* name, Widget value) : name_(name), value_(reinterpret_cast<long>(value)) {}
    template <class E>
    requires std::is_enum_v<E> Argument(char const* name, E value) : name_(name), value_(static_cast<long>(value)) {}
    template <class T>
    requires(!std::is_enum_v<T>) Argument(char const* name, T value)
    = delete;

    char const* Name() const { return name_; }
    // The value as the toolkit's argument type holds it.
    long Value() const { return value_; }

  private:
    char const* name_;
    long value_;
};

using Arguments = std::initializer_list<Argument>;

// Making, changing and measuring widgets. Main thread only; sizes and positions are pixels.
//
// A widget belongs to its parent: destroying a shell destroys everything in it.

// An application shell on the display, not yet realised. `name` is copied; a null `application_class` is none of its own.
Widget CreateShell(char const* name, char const* application_class, Arguments arguments);

// A managed child of `parent`, with the resources of both lists. `name` is copied.
Widget Create(Widget parent, char const* name, WidgetClass kind, Arguments arguments = {}, Arguments more = {});

void SetResources(Widget widget, Arguments arguments);

int WidthOf(Widget widget);
int HeightOf(Widget widget);
int BorderWidthOf(Widget widget);

// `pixels` within what a size of the X protocol holds: 1 to 32,767.
int ClampedSize(int pixels);

int DisplayWidthInPixels();

void SetLabel(Widget label, char const* text);

// Puts a form's child so many pixels from the form's left edge.
void PutAt(Widget child, int left);

// Makes an international label no wider than the display has room for, and as wide as its text where its own size has
// wrapped around 16 bits or is none.
void FitToDisplay(Widget label);

// Gives a managed widget a new width behind its parent's back and lets the parent lay it out again.
void Rewiden(Widget widget, int width);

// What becomes of a form's child when the window changes its size: it stays as it is at the top left, grows with the
// window, or keeps its distance from the bottom right corner. A form left to itself stretches all of them in proportion,
// buttons and gaps as well.
enum class Anchor { TopLeft, AllSides, BottomRight };
void AnchorInForm(Widget child, Anchor anchor);

// Puts the translations, a table in a literal, before those that the widget has.
void OverrideTranslations(Widget widget, char const* table);

void SetSensitive(Widget widget, bool sensitive);

// Shows or hides a managed widget without giving up its place.
void SetMapped(Widget widget, bool mapped);
