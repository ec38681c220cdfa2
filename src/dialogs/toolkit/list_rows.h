#pragma once

#include <cstddef>
#include <vector>

#include "dialogs/toolkit/widget.h"
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
