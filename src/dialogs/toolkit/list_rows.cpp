#include "dialogs/toolkit/list_rows.h"

#include <X11/Intrinsic.h>
#include <X11/Xaw/List.h>

#include <utility>

char const** ListRows::NoRows() {
    static char const* none[] = {nullptr};
    return none;
}

void ListRows::Show(Widget list, std::vector<AutoNullTerminated<char>> rows) {
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

void HighlightRow(Widget list, int row, std::size_t count) {
    if (row >= 0 && std::cmp_less(row, count)) XawListHighlight(list, row);
}

int HighlightedRow(Widget list) {
    XawListReturnStruct* current = XawListShowCurrent(list);
    int row = current->list_index;
    XtFree(reinterpret_cast<char*>(current));
    return row == XAW_LIST_NONE ? -1 : row;
}
