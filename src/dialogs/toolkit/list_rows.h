#pragma once

#include <cstddef>
#include <vector>

#include "dialogs/toolkit/widget.h"
#include "foundation/text/auto_null_terminated.h"

// The rows of one Athena list.
//
// The list widget keeps pointers to its row texts and to their array and copies neither, so they live here: this object
// must outlive what the list shows, and new rows are complete before the old ones go. Main thread only.
class ListRows {
  public:
    // Hands `rows` to the list in place of whatever it shows, unmanaging it meanwhile so that it is laid out once.
    // Nothing is highlighted afterwards.
    void Show(Widget list, std::vector<AutoNullTerminated<char>> rows);

    // The array of a list that has no rows yet. A list that was never given an array shows its own name as a row.
    static char const** NoRows();

    std::size_t Count() const { return rows_.size(); }

  private:
    std::vector<AutoNullTerminated<char>> rows_;
    std::vector<char const*> array_;
};

// Highlights `row`, which must be one of the list's `count` rows: the widget itself does not check, and a highlight
// beyond the rows makes it read beyond its array.
void HighlightRow(Widget list, int row, std::size_t count);

// The highlighted row, or -1.
int HighlightedRow(Widget list);
