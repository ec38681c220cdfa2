#pragma once

#include <vector>

#include "dialogs/toolkit/argument.h"
#include "dialogs/toolkit/list_rows.h"

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
