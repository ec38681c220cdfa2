#include "dialogs/toolkit/read_only_text.h"

#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/TextP.h>

#include <string>
#include <string_view>

#include "foundation/text/local_encoding.h"

static_assert(sizeof(UTF32::Unit) == sizeof(wchar_t));

namespace {

// Agents on other systems end lines in two characters; a carriage return alone ends one, too.
std::string WithLineFeedsOnly(std::string_view text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        lines += text[i] == '\r' ? '\n' : text[i];
    }
    return lines;
}

}  // namespace

Widget CreateReadOnlyText(Widget parent, char const* name, char const* text, Arguments arguments) {
    Arguments common = {{XtNtype, XawAsciiString},
                        {XtNscrollVertical, XawtextScrollAlways},
                        {XtNwrap, XawtextWrapWord},
                        {XtNdisplayCaret, false},
                        {XtNinternational, true},
                        {XtNpieceSize, BUFSIZ}};  // Of a user's few bytes the toolkit makes an endless loop.
    Widget created = Create(parent, name, asciiTextWidgetClass, common, arguments);
    // Deaf to the keyboard: the widget's own search window, which a key opens, reads beyond what is typed into it.
    OverrideTranslations(created, "<Key>: Nothing()\n");
    SetText(created, text);
    return created;
}

// As an edit with wide characters: of the string resource, and of an edit with others, the toolkit makes copies that it
// never frees.
void SetText(Widget text_widget, char const* text, View view) {
    std::string const bytes = WithLineFeedsOnly(text);
    auto const wide = UnixPlatform::ToNativeUnicode({bytes.data(), bytes.data() + bytes.size()});
    XawTextBlock block{0, static_cast<int>(wide.size()),
                       reinterpret_cast<char*>(const_cast<UTF32::Unit*>(wide.begin())), XawFmtWide};
    auto const top = view == View::Kept ? XawTextTopPosition(text_widget) : 0;
    int const start = top < block.length ? static_cast<int>(top) : 0;
    SetResources(text_widget, {{XtNeditType, XawtextEdit}});
    XawTextReplace(text_widget, 0, XawTextLastPosition(text_widget), &block);
    SetResources(text_widget, {{XtNeditType, XawtextRead}, {XtNinsertPosition, start}, {XtNdisplayPosition, start}});
    // Drawn anew as a whole: lines of another height would leave parts of the old ones behind.
    if (XtIsRealized(text_widget)) XClearArea(XtDisplay(text_widget), XtWindow(text_widget), 0, 0, 0, 0, True);
}

void MakeScrollable(Widget text_widget) {
    // It is no named child that could be looked up.
    Widget bar = reinterpret_cast<TextWidget>(text_widget)->text.vbar;
    if (bar) SetResources(bar, {{XtNancestorSensitive, true}});
    OverrideScrollbarTranslations(bar);
}

void ScrollText(Widget text_widget, Move move, int lines) {
    // In the order of the moves. The text moves down when the view moves up.
    static constexpr char const* kActions[] = {
        "scroll-one-line-down", "scroll-one-line-up", "previous-page", "next-page", "beginning-of-file", "end-of-file"};
    XEvent none{};
    for (int line = 0; line < lines; ++line)
        XtCallActionProc(text_widget, kActions[static_cast<std::size_t>(move)], &none, nullptr, 0);
}

void OverrideScrollbarTranslations(Widget scrollbar) {
    if (!scrollbar) return;
    OverrideTranslations(scrollbar,
                         "#override\n"
                         "\t\t<Btn1Down>: StartScroll(Continuous) MoveThumb() NotifyThumb()\n"
                         "\t\t<Btn3Down>: StartScroll(Continuous) MoveThumb() NotifyThumb()\n"
                         "\t\t<Btn1Motion>: MoveThumb() NotifyThumb()\n"
                         "\t\t<Btn3Motion>: MoveThumb() NotifyThumb()\n");
}
