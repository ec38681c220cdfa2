#pragma once

#include <functional>
#include <vector>

#include "dialogs/toolkit/dialog_window.h"
#include "foundation/text/auto_ustring.h"

// A one-column list in a viewport that scrolls it. Main thread only.
//
// The viewport's scroll bar comes and goes with the number of rows. One that is there from the beginning stands beside the
// rows, not over them; one that comes later takes its room from them, so that the window stays as it is.
//
// The list widget keeps pointers to its row texts and to their array and copies neither: they live here, new ones are
// complete before the old ones go, and all outlive the widgets. So a pane may be created again after its dialog was
// destroyed.
class ListPane {
  public:
    using Rows = std::vector<AutoNullTerminated<char>>;

    // Makes the two widgets, without rows; `width` and `height` are the rows' part in pixels. `on_row` hears of each row
    // that the keyboard highlights.
    void Create(DialogWindow& window, char const* name, int width, int height, Widget below, Anchor anchor,
                std::function<void(int row)> on_row);

    Widget Viewport() const { return viewport_; }
    Widget List() const { return list_; }

    // Shows these rows, laid out once, in place of whatever is there. Nothing is highlighted afterwards. Of very many rows
    // the last are left out: positions in a window end at 32,767 pixels, and a list's size is kept in 16 bits and would
    // be none at all for certain numbers of rows.
    void ShowRows(Rows rows);
    // Whether that would show what is there already.
    bool Shows(Rows const& rows) const;

    // Highlights a row and scrolls it into view; anything but one of the rows is ignored: the widget itself does not
    // check, and a highlight beyond the rows makes it read beyond its array.
    void Highlight(int row);

    // Makes the viewport so wide that the rows have this width beside its scroll bar, if it has one. Once the widgets
    // are realised and have their rows, before the window is seen.
    void Fit(int width);

  private:
    void HandOver(Rows rows);
    // The width that the rows share: that of the viewport beside its scroll bar, so that a row can be pressed, and is
    // highlighted, from edge to edge.
    int RowWidth() const;
    void WidenRows();
    void GoTo(Move move);
    void Scroll(Move move, int lines) const;

    Widget viewport_ = nullptr;
    Widget list_ = nullptr;
    std::function<void(int)> on_row_;
    Rows rows_;
    std::vector<char const*> array_;
};

// The highlighted row of a list, or -1.
int HighlightedRow(Widget list);

// The vertical scroll bar of a viewport, or null: it exists only while the viewport is realised and its child is taller
// than it.
Widget VerticalScrollbar(Widget viewport);

// Scrolls so that the highlighted row of `list`, if there is one, stands at the top of `viewport`, as far as the bar can
// go.
void ScrollSelectedItemIntoView(Widget viewport, Widget list);
