#include "dialogs/toolkit/list_pane.h"

#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/ListP.h>
#include <X11/Xaw/Viewport.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "dialogs/toolkit/read_only_text.h"
#include "dialogs/toolkit/widgets.h"

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

void ListPane::Create(Widget parent, char const* name, int width, int height, Arguments arguments) {
    scrollbar_ = nullptr;
    fitted_width_ = width;
    viewport_ = ::Create(parent, name, viewportWidgetClass,
                         {{XtNwidth, width}, {XtNheight, height}, {XtNallowVert, true}}, arguments);
    // A list that is given no array shows its own name as a row, and divides by the width of its one column: no user's
    // resources may take the array or the width from it.
    static char const* const no_rows[] = {nullptr};
    list_ = ::Create(viewport_, "", listWidgetClass,
                     {{XtNdefaultColumns, 1},
                      {XtNforceColumns, true},
                      {XtNverticalList, true},
                      {XtNinternational, true},
                      {XtNlist, no_rows},
                      {XtNnumberStrings, 0},
                      {XtNcolumnSpacing, 6}});
    ShowRows({});
}

// Managed again, a realised list's window is put at the top of the viewport behind the toolkit's back: it is moved there
// before, so that the toolkit agrees, and to where it was afterwards.
void ListPane::ShowRows(std::vector<AutoNullTerminated<char>> rows) {
    if (!XtIsRealized(list_)) return rows_.Show(list_, std::move(rows));
    Position top = 0;
    XtVaGetValues(list_, XtNy, &top, nullptr);
    XtMoveWidget(list_, 0, 0);
    rows_.Show(list_, std::move(rows));
    XawViewportSetCoordinates(viewport_, 0, static_cast<Position>(-top));
}

void ListPane::Highlight(int row) {
    HighlightRow(list_, row, rows_.Count());
    ScrollSelectedItemIntoView(viewport_, list_);
}

void ListPane::Fit(int width) {
    Widget scrollbar = VerticalScrollbar(viewport_);
    int const wanted = scrollbar ? width + WidthOf(scrollbar) : width;
    if (scrollbar == scrollbar_ && wanted == fitted_width_) return;
    if (scrollbar != scrollbar_) OverrideScrollbarTranslations(scrollbar);
    scrollbar_ = scrollbar;
    fitted_width_ = wanted;
    Rewiden(viewport_, wanted);
}
