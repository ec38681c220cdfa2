#include "dialogs/toolkit/read_only_text.h"

#include <X11/Intrinsic.h>
#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/TextP.h>

#include <string_view>

#include "dialogs/toolkit/list_pane.h"
#include "dialogs/toolkit/widgets.h"
#include "foundation/text/local_encoding.h"

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

static_assert(sizeof(UTF32::Unit) == sizeof(wchar_t));

Widget CreateReadOnlyText(Widget parent, char const* name, char const* text, Arguments arguments) {
    Arguments common = {{XtNtype, XawAsciiString},
                        {XtNscrollVertical, XawtextScrollAlways},
                        {XtNwrap, XawtextWrapWord},
                        {XtNdisplayCaret, false},
                        {XtNinternational, true}};
    Widget readOnlyText = Create(parent, name, asciiTextWidgetClass, common, arguments);
    // Deaf to the keyboard: the widget's own search window, which a key opens, reads beyond what is typed into it.
    static XtTranslations const deaf = XtParseTranslationTable("<Key>: Nothing()\n");
    XtOverrideTranslations(readOnlyText, deaf);
    SetText(readOnlyText, text);
    return readOnlyText;
}

// As an edit with wide characters: of the string resource, and of an edit with others, the toolkit makes copies that it
// never frees.
void SetText(Widget readOnlyText, char const* text, View view) {
    std::string_view const bytes(text);
    auto const wide = UnixPlatform::ToNativeUnicode({bytes.data(), bytes.data() + bytes.size()});
    XawTextBlock block{0, static_cast<int>(wide.size()),
                       reinterpret_cast<char*>(const_cast<UTF32::Unit*>(wide.begin())), XawFmtWide};
    auto const top = view == View::Kept ? XawTextTopPosition(readOnlyText) : 0;
    int const start = top < block.length ? static_cast<int>(top) : 0;
    SetResources(readOnlyText, {{XtNeditType, XawtextEdit}});
    XawTextReplace(readOnlyText, 0, XawTextLastPosition(readOnlyText), &block);
    SetResources(readOnlyText, {{XtNeditType, XawtextRead}, {XtNinsertPosition, start}, {XtNdisplayPosition, start}});
    // Drawn anew as a whole: lines of another height would leave parts of the old ones behind.
    if (XtIsRealized(readOnlyText)) XClearArea(XtDisplay(readOnlyText), XtWindow(readOnlyText), 0, 0, 0, 0, True);
}
