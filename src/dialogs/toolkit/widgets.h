#pragma once

#include <initializer_list>
#include <type_traits>
#include <vector>

// Xt's names for a widget and for a widget class, repeated so that headers need no X header.
struct _WidgetRec;
using Widget = _WidgetRec*;
struct _WidgetClassRec;
using WidgetClass = _WidgetClassRec*;

// One resource name and its value, as a widget is given them.
//
// The constructors admit exactly the kinds of value that the resources of this program's widgets hold; any other type
// does not compile. A string is borrowed for the call: labels, titles and texts are copied by their widgets, a list's
// rows are not (see ListPane).
class Argument {
  public:
    // Pixels, counts and positions. The toolkit keeps sizes in 16 bits: Rewiden is for those that may be more.
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

// Shows another text, in the locale's encoding. Of control characters only line feeds mean something in a label: others
// are blanks, and a carriage return before a line feed is nothing.
void SetLabel(Widget label, char const* text);

// Puts a form's child so many pixels from the form's left edge.
void PutAt(Widget child, int left);
// Puts a form's child below another one.
void PutBelow(Widget child, Widget above);

// A managed label or button below another child of the form. `text`, in the locale's encoding, is copied. One without any
// text still has a size.
Widget CreateLabel(Widget form, char const* name, WidgetClass kind, char const* text, Widget below);

// The widest that something in a window can be to be seen whole.
int WidestInDisplay();

// Makes a label no wider than that: breaks its text into at most so many lines, or, for 0, cuts its own lines off.
void FitToDisplay(Widget label, int most_lines);

// Gives a button, for good, the width that the widest of its own text and others needs, as far as the display has the
// room.
void FixWidth(Widget button, std::vector<char const*> const& other_texts);
// Makes a widget narrower if it is wider than so many pixels, its border included.
void CutToWidth(Widget widget, int outer_width);

// The smallest size of a form in which every child that keeps its size is whole and those that follow the window are still
// of use.
struct Size {
    int width;
    int height;
};
Size SmallestSizeOf(Widget form);

// Gives a managed widget a new width, within 1 to 32,767 pixels, behind its parent's back and lets the parent lay it out
// again.
void Rewiden(Widget widget, int width);

// What becomes of a form's child when the window changes its size: it keeps its size and its distance from a corner, or
// follows the window in its width, or in both. A form left to itself stretches all of them in proportion, buttons and gaps
// as well.
enum class Anchor { TopLeft, TopWide, AllSides, BottomLeft, BottomRight };
void AnchorInForm(Widget child, Anchor anchor);

// Puts the translations, a table in a literal, before those that the widget has.
void OverrideTranslations(Widget widget, char const* table);

void SetSensitive(Widget widget, bool sensitive);

// Shows or hides a managed widget without giving up its place.
void SetMapped(Widget widget, bool mapped);
