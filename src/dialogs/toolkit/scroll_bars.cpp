#include "dialogs/toolkit/scroll_bars.h"

#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/TextP.h>

#include "dialogs/toolkit/list_rows.h"

Widget VerticalScrollbar(Widget viewport) {
    return XtNameToWidget(viewport, "vertical");
}

Widget TextScrollbar(Widget text) {
    return reinterpret_cast<TextWidget>(text)->text.vbar;
}

void OverrideScrollbarTranslations(Widget scrollbar) {
    static XtTranslations const drag = XtParseTranslationTable(
        "#override\n"
        "\t\t<Btn1Down>: StartScroll(Continuous) MoveThumb() NotifyThumb()\n"
        "\t\t<Btn3Down>: StartScroll(Continuous) MoveThumb() NotifyThumb()\n"
        "\t\t<Btn1Motion>: MoveThumb() NotifyThumb()\n"
        "\t\t<Btn3Motion>: MoveThumb() NotifyThumb()\n");
    if (scrollbar) XtOverrideTranslations(scrollbar, drag);
}

void MakeScrollable(Widget insensitiveText) {
    Widget bar = TextScrollbar(insensitiveText);
    if (bar) XtVaSetValues(bar, XtNancestorSensitive, True, nullptr);
    OverrideScrollbarTranslations(bar);
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
