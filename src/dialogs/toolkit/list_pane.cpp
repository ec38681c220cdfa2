#include "dialogs/toolkit/list_pane.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/Viewport.h>

#include "dialogs/toolkit/scroll_bars.h"
#include "dialogs/toolkit/widgets.h"

void ListPane::Create(Widget parent, char const* name, int width, int height, Arguments arguments) {
    scrollbar_ = nullptr;
    fitted_width_ = width;
    viewport_ = ::Create(parent, name, viewportWidgetClass,
                         {{XtNwidth, width}, {XtNheight, height}, {XtNallowVert, true}}, arguments);
    list_ =
        ::Create(viewport_, "", listWidgetClass,
                 {{XtNdefaultColumns, 1}, {XtNforceColumns, true}, {XtNverticalList, true}, {XtNinternational, true}});
    ShowRows({});
}

void ListPane::ShowRows(std::vector<AutoNullTerminated<char>> rows) {
    rows_.Show(list_, std::move(rows));
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
