#include "dialogs/toolkit/list_pane.h"

#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/ListP.h>
#include <X11/Xaw/Viewport.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/read_only_text.h"

namespace {

auto const& PartOf(Widget list) {
    return reinterpret_cast<ListWidget>(list)->list;
}

std::size_t MostRows(Widget list) {
    constexpr int kTallest = 32767;  // Pixels, of a window that can be scrolled to its end.
    return static_cast<std::size_t>((kTallest - 2 * PartOf(list).internal_height) /
                                    std::max(PartOf(list).row_height, 1));
}

}  // namespace

void ListPane::Create(DialogWindow& window, char const* name, int width, int height, Widget below, Anchor anchor,
                      std::function<void(int)> on_row) {
    on_row_ = std::move(on_row);
    viewport_ = ::Create(window.Form(), name, viewportWidgetClass,
                         {{XtNwidth, width}, {XtNheight, height}, {XtNallowVert, true}, {XtNfromVert, below}});
    AnchorInForm(viewport_, anchor);
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
    rows_.clear();
    OnEvents(list_, StructureNotifyMask, [this](XEvent const& event) {
        if (event.type == ConfigureNotify) WidenRows();
    });
    window.AddControl({.widget = list_,
                       .outline = viewport_,
                       .go = [this](Move move) { GoTo(move); },
                       .scroll = [this](Move move, int lines) { Scroll(move, lines); }});
}

// Managed again, a realised list's window is put at the top of the viewport behind the toolkit's back: it is moved there
// before, so that the toolkit agrees, and to where it was afterwards.
void ListPane::ShowRows(Rows rows) {
    if (!XtIsRealized(list_)) return HandOver(std::move(rows));
    Position top = 0;
    XtVaGetValues(list_, XtNy, &top, nullptr);
    XtMoveWidget(list_, 0, 0);
    HandOver(std::move(rows));
    XawViewportSetCoordinates(viewport_, 0, static_cast<Position>(-top));
}

void ListPane::HandOver(Rows rows) {
    rows.resize(std::min(rows.size(), MostRows(list_)));
    std::vector<char const*> array;
    array.reserve(rows.size() + 1);
    for (auto const& row : rows) array.push_back(row.c_str());
    array.push_back(nullptr);

    XtUnmanageChild(list_);
    XawListChange(list_, array.data(), static_cast<int>(rows.size()), RowWidth(), True);
    XtManageChild(list_);
    rows_ = std::move(rows);
    array_ = std::move(array);
}

bool ListPane::Shows(Rows const& rows) const {
    auto const shown = std::min(rows.size(), MostRows(list_));
    return std::equal(rows_.begin(), rows_.end(), rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(shown),
                      [](auto const& a, auto const& b) { return std::strcmp(a.c_str(), b.c_str()) == 0; });
}

void ListPane::Highlight(int row) {
    if (row >= 0 && std::cmp_less(row, rows_.size())) XawListHighlight(list_, row);
    ScrollSelectedItemIntoView(viewport_, list_);
}

void ListPane::Fit(int width) {
    Widget scrollbar = VerticalScrollbar(viewport_);
    if (scrollbar) OverrideScrollbarTranslations(scrollbar);
    Rewiden(viewport_, scrollbar ? width + WidthOf(scrollbar) : width);
    WidenRows();
}

int ListPane::RowWidth() const {
    Widget scrollbar = VerticalScrollbar(viewport_);
    int const beside = scrollbar ? WidthOf(scrollbar) + BorderWidthOf(scrollbar) : 0;
    auto const& part = PartOf(list_);
    return std::max(1, WidthOf(viewport_) - beside - 2 * part.internal_width - part.column_space);
}

void ListPane::WidenRows() {
    if (PartOf(list_).longest == RowWidth()) return;
    SetResources(list_, {{XtNlongest, RowWidth()}});
    OverrideScrollbarTranslations(VerticalScrollbar(viewport_));
}

void ListPane::GoTo(Move move) {
    int const last = static_cast<int>(rows_.size()) - 1;
    if (last < 0) return;
    int const page = std::max(1, HeightOf(viewport_) / std::max(1, PartOf(list_).row_height) - 1);
    int const from = HighlightedRow(list_);
    int const steps[] = {-1, 1, -page, page, -last, last};
    // From no row at all, every move but that to the end leads to the first.
    int const to = move == Move::Last ? last : from < 0 ? 0 : from + steps[static_cast<std::size_t>(move)];
    Highlight(std::clamp(to, 0, last));
    on_row_(HighlightedRow(list_));
}

void ListPane::Scroll(Move move, int lines) const {
    int const step = lines * PartOf(list_).row_height;
    Position top = 0;
    XtVaGetValues(list_, XtNy, &top, nullptr);
    XawViewportSetCoordinates(viewport_, 0, static_cast<Position>(-top + (move == Move::LineUp ? -step : step)));
}

int HighlightedRow(Widget list) {
    XawListReturnStruct* current = XawListShowCurrent(list);
    int row = current->list_index;
    XtFree(reinterpret_cast<char*>(current));
    return row == XAW_LIST_NONE ? -1 : row;
}

Widget VerticalScrollbar(Widget viewport) {
    return XtNameToWidget(viewport, "vertical");
}

void ScrollSelectedItemIntoView(Widget viewport, Widget list) {
    int row = HighlightedRow(list);
    Widget bar = VerticalScrollbar(viewport);
    int count = 0;
    XtVaGetValues(list, XtNnumberStrings, &count, nullptr);
    if (row < 0 || !bar || count <= 0) return;
    float top = static_cast<float>(row) / static_cast<float>(count);
    XtCallCallbacks(bar, XtNjumpProc, &top);
}
