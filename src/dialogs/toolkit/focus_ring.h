#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "dialogs/toolkit/widgets.h"

// A way through what a list or a text shows.
enum class Move { LineUp, LineDown, PageUp, PageDown, First, Last };

// One thing in a dialog that the keyboard and the wheel reach.
struct Control {
    Widget widget = nullptr;                           // It reacts while this one is sensitive and shown.
    Widget outline = nullptr;                          // What is outlined while it has the focus: a child of the form.
    std::function<void()> press = {};                  // Of a button.
    std::function<void(Move)> go = {};                 // Of a list: the keyboard selects another row.
    std::function<void(Move, int lines)> scroll = {};  // Of a list and a text: by so many lines, or as the move says.
};

// The controls of one dialog in the order in which Tab visits them, and which of them has the focus. Main thread only.
//
// Keys: Tab and Shift+Tab visit the controls that react; space and Return press the button that has the focus; the
// arrows, Home, End, Page Up and Page Down move in the list that has it, or else scroll the text that has it, or else the
// dialog's first text; Escape presses the dialog's escape, if it has one. A key that is held down presses once.
//
// The pointer moves the focus to the list or the text that it presses: what is typed next is meant for that, and for no
// button that had it before.
//
// Whoever types without looking consents to nothing: whenever the keyboard comes to the dialog, and after each decision,
// the focus is back where it was at first.
class FocusRing {
  public:
    // Begins anew, for the controls of this form.
    void Begin(Widget form);
    void Add(Control control) { controls_.push_back(std::move(control)); }
    // The control that has the focus at first, and the button that Escape presses: by their widgets.
    void SetFirst(Widget widget);
    void SetEscape(Widget widget) { escape_ = widget; }

    // Puts the focus back where it was at first.
    void Reset();
    // The same if what has the focus no longer reacts.
    void KeepOnWhatReacts();
    // Whether the window has the keyboard: only then the focus is shown.
    void SetShown(bool shown);
    bool IsShown() const { return shown_; }
    // Draws the outline; after the form was drawn.
    void Draw() const;

    // Does what the key means here (a KeySym); false when it means nothing.
    bool HandleKey(unsigned long key, bool held);
    // Turns the wheel over `under`: scrolls the control that it is part of.
    void HandleWheel(Widget under, bool up) const;
    // Presses the pointer's first button over `under`.
    void HandlePress(Widget under);

  private:
    bool Reacts(Control const& control) const;
    Control const* Find(Widget widget) const;
    // The list or the text that `under` is part of, or the end.
    std::size_t IndexOfScrolled(Widget under) const;
    void Visit(std::size_t index);
    void Advance(std::size_t step);
    bool Press(Control const* control, bool held) const;
    bool GoOrScroll(Move move) const;
    void Erase() const;

    Widget form_ = nullptr;
    std::vector<Control> controls_;
    std::size_t first_ = 0;
    std::size_t focused_ = 0;
    Widget escape_ = nullptr;
    bool shown_ = false;
};
