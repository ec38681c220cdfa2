#include "dialogs/toolkit/list_rows.h"

#include <X11/IntrinsicP.h>
#include <X11/Xaw/ListP.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

std::size_t MostRows(Widget list) {
    constexpr int tallest = 32767;  // Pixels, of a window that can be scrolled to its end.
    auto const& part = reinterpret_cast<ListWidget>(list)->list;
    return static_cast<std::size_t>((tallest - 2 * part.internal_height) / std::max(part.row_height, 1));
}

}  // namespace

void ListRows::Show(Widget list, std::vector<AutoNullTerminated<char>> rows) {
    rows.resize(std::min(rows.size(), MostRows(list)));
    std::vector<char const*> array;
    array.reserve(rows.size() + 1);
    for (auto const& row : rows) array.push_back(row.c_str());
    array.push_back(nullptr);

    XtUnmanageChild(list);
    XawListChange(list, array.data(), static_cast<int>(rows.size()), 0, True);
    XtManageChild(list);
    rows_ = std::move(rows);
    array_ = std::move(array);
}

bool ListRows::AreSameAs(std::vector<AutoNullTerminated<char>> const& rows) const {
    return std::equal(rows_.begin(), rows_.end(), rows.begin(), rows.end(),
                      [](auto const& a, auto const& b) { return std::strcmp(a.c_str(), b.c_str()) == 0; });
}

void HighlightRow(Widget list, int row, std::size_t count) {
    if (row >= 0 && std::cmp_less(row, count)) XawListHighlight(list, row);
}

int HighlightedRow(Widget list) {
    XawListReturnStruct* current = XawListShowCurrent(list);
    int row = current->list_index;
    XtFree(reinterpret_cast<char*>(current));
    return row == XAW_LIST_NONE ? -1 : row;
}
