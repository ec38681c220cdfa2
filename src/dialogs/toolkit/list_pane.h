#pragma once

#include <cstddef>
#include <vector>

#include "dialogs/toolkit/widgets.h"
#include "foundation/text/auto_ustring.h"

// The rows of one Athena list.
//
// The list widget keeps pointers to its row texts and to their array and copies neither, so they live here: this object
// must outlive what the list shows, and new rows are complete before the old ones go. Main thread only.
class ListRows {
  public:
    // Hands `rows` to the list in place of whatever it shows, unmanaging it meanwhile so that it is laid out once.
    // Nothing is highlighted afterwards. Of very many rows the last are left out: positions in a window end at 32,767
    // pixels, and a list's size is kept in 16 bits and would be none at all for certain numbers of rows.
    void Show(Widget list, std::vector<AutoNullTerminated<char>> rows);

    std::size_t Count() const { return rows_.size(); }
    // Whether the list shows exactly these rows, none left out.
    bool AreSameAs(std::vector<AutoNullTerminated<char>> const& rows) const;

  private:
    std::vector<AutoNullTerminated<char>> rows_;
    std::vector<char const*> array_;
};

// Highlights `row` if it is one of the list's `count` rows: the widget itself does not check, and a highlight beyond the
// rows makes it read beyond its array.
void HighlightRow(Widget list, int row, std::size_t count);

// The highlighted row, or -1.
int HighlightedRow(Widget list);

// A one-column list in a viewport that scrolls it. Main thread only.
//
// The viewport's scroll bar comes and goes with the number of rows. It stands beside the rows, not over them: while it
// is there the viewport is wider by its width. The rows outlive the widgets, so a pane may be created again after its
// dialog was destroyed.
class ListPane {
  public:
    // Makes the two widgets; `width` and `height` are the rows' part in pixels, `arguments` place the viewport.
    void Create(Widget parent, char const* name, int width, int height, Arguments arguments);

    Widget Viewport() const { return viewport_; }
    Widget List() const { return list_; }

    // Shows these rows. Nothing is highlighted afterwards.
    void ShowRows(std::vector<AutoNullTerminated<char>> rows);
    bool Shows(std::vector<AutoNullTerminated<char>> const& rows) const { return rows_.AreSameAs(rows); }
    // Highlights a row and scrolls it into view; anything but one of the rows is ignored.
    void Highlight(int row);

    // Gives the rows' part a new width and takes account of a scroll bar that has come or gone. Once the widgets are
    // realised, and after each change of the rows.
    void Fit(int width);

  private:
    Widget viewport_ = nullptr;
    Widget list_ = nullptr;
    Widget scrollbar_ = nullptr;  // The one that has been fitted, if it is still there.
    int fitted_width_ = 0;
    ListRows rows_;
};
