#include "dialogs/toolkit/widgets.h"

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/Form.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <vector>

#include "core/process/process_state.h"
#include "foundation/base/never_destroyed.h"

namespace {

std::vector<Arg> ToolkitArguments(std::initializer_list<Arguments> lists) {
    std::vector<Arg> all;
    for (auto const& list : lists)
        for (auto const& argument : list) all.push_back({const_cast<String>(argument.Name()), argument.Value()});
    return all;
}

int DimensionOf(Widget widget, char const* name) {
    Dimension value = 0;
    XtVaGetValues(widget, name, &value, nullptr);
    return value;
}

// How wide the widest line of the label's text is in its font.
int TextWidth(Widget label) {
    XFontSet fonts = nullptr;
    char const* text = "";
    XtVaGetValues(label, XtNfontSet, &fonts, XtNlabel, &text, nullptr);
    int widest = 0;
    for (std::size_t length; fonts && *text; text += length + (text[length] ? 1 : 0)) {
        length = std::strcspn(text, "\n");
        // Xlib counts in int: beyond this many bytes only "very wide" matters.
        int const measured = static_cast<int>(std::min<std::size_t>(length, 1 << 16));
        widest = std::max(widest, XmbTextEscapement(fonts, text, measured));
    }
    return widest;
}

}  // namespace

Widget CreateShell(char const* name, char const* application_class, Arguments arguments) {
    auto list = ToolkitArguments({arguments});
    return XtAppCreateShell(name, application_class, applicationShellWidgetClass, display, list.data(),
                            static_cast<Cardinal>(list.size()));
}

Widget Create(Widget parent, char const* name, WidgetClass kind, Arguments arguments, Arguments more) {
    auto list = ToolkitArguments({arguments, more});
    return XtCreateManagedWidget(name, kind, parent, list.data(), static_cast<Cardinal>(list.size()));
}

void SetResources(Widget widget, Arguments arguments) {
    auto list = ToolkitArguments({arguments});
    XtSetValues(widget, list.data(), static_cast<Cardinal>(list.size()));
}

int WidthOf(Widget widget) {
    return DimensionOf(widget, XtNwidth);
}
int HeightOf(Widget widget) {
    return DimensionOf(widget, XtNheight);
}
int BorderWidthOf(Widget widget) {
    return DimensionOf(widget, XtNborderWidth);
}

int ClampedSize(int pixels) {
    return std::clamp(pixels, 1, 32767);
}

int DisplayWidthInPixels() {
    return DisplayWidth(display, DefaultScreen(display));
}

void SetLabel(Widget label, char const* text) {
    SetResources(label, {{XtNlabel, text}});
}

void PutAt(Widget child, int left) {
    SetResources(child, {{XtNhorizDistance, left}});
}

void FitToDisplay(Widget label) {
    constexpr int kMargins = 16;
    int const limit = DisplayWidthInPixels() - kMargins;
    int const wanted = TextWidth(label);
    if (WidthOf(label) == 0 || wanted > limit) Rewiden(label, std::min(wanted, limit));
}

void Rewiden(Widget widget, int width) {
    XtUnmanageChild(widget);
    SetResources(widget, {{XtNwidth, ClampedSize(width)}});
    XtManageChild(widget);
}

void AnchorInForm(Widget child, Anchor anchor) {
    bool const right = anchor == Anchor::BottomRight, left = anchor == Anchor::TopLeft;
    SetResources(child, {{XtNtop, right ? XawChainBottom : XawChainTop},
                         {XtNleft, right ? XawChainRight : XawChainLeft},
                         {XtNbottom, left ? XawChainTop : XawChainBottom},
                         {XtNright, left ? XawChainLeft : XawChainRight}});
}

// A table is parsed once: the toolkit never frees one.
void OverrideTranslations(Widget widget, char const* table) {
    static auto& parsed = NeverDestroyed<std::map<char const*, XtTranslations>>();
    auto& translations = parsed[table];
    if (!translations) translations = XtParseTranslationTable(table);
    XtOverrideTranslations(widget, translations);
}

void SetSensitive(Widget widget, bool sensitive) {
    XtSetSensitive(widget, sensitive);
}

void SetMapped(Widget widget, bool mapped) {
    XtSetMappedWhenManaged(widget, mapped);
}
