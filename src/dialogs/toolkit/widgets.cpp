#include "dialogs/toolkit/widgets.h"

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/process/process_state.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"

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

// A widget of no size, as a user's resources could make it of one without any text, would end the process.
void KeepSomeSize(Widget label) {
    int const width = WidthOf(label), height = HeightOf(label);
    if (width > 0 && height > 0) return;
    SetResources(label, {{XtNwidth, std::max(width, 1)}, {XtNheight, std::max(height, 1)}, {XtNresize, false}});
}

// What a label shows of a text.
std::string Showable(char const* text) {
    std::string shown;
    for (; *text; ++text) {
        if (text[0] == '\r' && text[1] == '\n') continue;
        shown += IsControl(*text) && *text != '\n' ? ' ' : *text;
    }
    return shown;
}

XFontSet FontsOf(Widget label) {
    XFontSet fonts = nullptr;
    XtVaGetValues(label, XtNfontSet, &fonts, nullptr);
    return fonts;
}

int WidthIn(XFontSet fonts, std::string_view text) {
    // Xlib counts in int: beyond this many bytes only "very wide" matters.
    return XmbTextEscapement(fonts, text.data(), static_cast<int>(std::min<std::size_t>(text.size(), 1 << 16)));
}

// The bytes of the text's beginning that fit into the width, at least one character: up to the last blank, if there is
// one, else between two characters.
std::size_t LengthOfLine(XFontSet fonts, std::string_view text, int width) {
    std::size_t end = 0, blank = 0;
    for (int used = 0; end < text.size();) {
        int const bytes = std::max(1, std::mblen(text.data() + end, text.size() - end));
        used += WidthIn(fonts, text.substr(end, static_cast<std::size_t>(bytes)));
        if (used > width && end > 0) return blank > 0 ? blank : end;
        end += static_cast<std::size_t>(bytes);
        if (text[end - 1] == ' ') blank = end;
    }
    return end;
}

// The text in lines that fit: what is too long goes on in the next line, at most so many in all, or is left out for 0.
std::string InLines(XFontSet fonts, std::string_view text, int width, int most_lines) {
    std::string lines;
    for (int line = 0; !text.empty() && (most_lines == 0 || line < most_lines); ++line) {
        auto const paragraph = text.substr(0, text.find('\n'));
        auto const length = LengthOfLine(fonts, paragraph, width);
        if (line > 0) lines += '\n';
        lines += paragraph.substr(0, length);
        bool const done = most_lines == 0 || length == paragraph.size();
        text.remove_prefix(done ? paragraph.size() : length);
        if (done && !text.empty()) text.remove_prefix(1);
    }
    return lines;
}

// A form's child: its edges, borders included, and what they are held by.
struct Child {
    int begin, end, upper, lower;
    XtEdgeType left, right, top, bottom;
};

std::vector<Child> ChildrenOf(Widget form) {
    WidgetList widgets = nullptr;
    Cardinal count = 0;
    XtVaGetValues(form, XtNchildren, &widgets, XtNnumChildren, &count, nullptr);
    std::vector<Child> children;
    for (Widget widget : std::span(widgets, count)) {
        Child child{};
        Position x = 0, y = 0;
        XtVaGetValues(widget, XtNx, &x, XtNy, &y, XtNleft, &child.left, XtNright, &child.right, XtNtop, &child.top,
                      XtNbottom, &child.bottom, nullptr);
        int const borders = 2 * BorderWidthOf(widget);
        child.begin = x, child.end = x + WidthOf(widget) + borders;
        child.upper = y, child.lower = y + HeightOf(widget) + borders;
        children.push_back(child);
    }
    return children;
}

// Where what stands beside the child, held by the right edge, begins; without any, the form's end.
int FirstBeside(Child const& child, std::vector<Child> const& children, int end) {
    for (auto const& other : children)
        if (other.left == XtChainRight && other.upper < child.lower && child.upper < other.lower)
            end = std::min(end, other.begin);
    return end;
}

}  // namespace

// What reacts is for the program to say, not for a user's resources.
Widget CreateShell(char const* name, char const* application_class, Arguments arguments) {
    auto list = ToolkitArguments({{{XtNsensitive, true}}, arguments});
    return XtAppCreateShell(name, application_class, applicationShellWidgetClass, display, list.data(),
                            static_cast<Cardinal>(list.size()));
}

Widget Create(Widget parent, char const* name, WidgetClass kind, Arguments arguments, Arguments more) {
    auto list = ToolkitArguments({{{XtNsensitive, true}}, arguments, more});
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

int WidestInDisplay() {
    constexpr int kMargins = 16;
    return DisplayWidth(display, DefaultScreen(display)) - kMargins;
}

Widget CreateLabel(Widget form, char const* name, WidgetClass kind, char const* text, Widget below) {
    Widget label =
        Create(form, name, kind, {{XtNlabel, Showable(text).c_str()}, {XtNfromVert, below}, {XtNinternational, true}});
    KeepSomeSize(label);
    return label;
}

void SetLabel(Widget label, char const* text) {
    SetResources(label, {{XtNlabel, Showable(text).c_str()}});
}

void PutAt(Widget child, int left) {
    SetResources(child, {{XtNhorizDistance, left}});
}

void PutBelow(Widget child, Widget above) {
    SetResources(child, {{XtNfromVert, above}});
}

// By the font, not by the label's own size, which a very long text wraps around 16 bits.
void FitToDisplay(Widget label, int most_lines) {
    XFontSet const fonts = FontsOf(label);
    char const* text = "";
    XtVaGetValues(label, XtNlabel, &text, nullptr);
    Dimension margin = 0;
    XtVaGetValues(label, XtNinternalWidth, &margin, nullptr);
    int const width = WidestInDisplay() - 2 * margin;
    if (!fonts) return;
    auto const lines = InLines(fonts, text, width, most_lines);
    if (lines != text) SetResources(label, {{XtNlabel, lines.c_str()}, {XtNresize, true}});
    KeepSomeSize(label);
}

void FixWidth(Widget button, std::vector<char const*> const& other_texts) {
    char const* text = "";
    XtVaGetValues(button, XtNlabel, &text, nullptr);
    std::string const own = text;
    int widest = WidthOf(button);
    SetResources(button, {{XtNresizable, true}, {XtNresize, !other_texts.empty()}});
    for (auto const* other : other_texts) {
        SetLabel(button, other);
        widest = std::max(widest, WidthOf(button));
    }
    SetLabel(button, own.c_str());
    SetResources(button,
                 {{XtNwidth, std::clamp(widest, 1, WidestInDisplay())}, {XtNresize, false}, {XtNresizable, false}});
}

void CutToWidth(Widget widget, int outer_width) {
    int const width = outer_width - 2 * BorderWidthOf(widget);
    if (WidthOf(widget) > width) Rewiden(widget, width);
}

Size SmallestSizeOf(Widget form) {
    constexpr int kSmallest = 40;  // Of what follows the window.
    constexpr int kMargin = 4;
    auto const children = ChildrenOf(form);
    int const width = WidthOf(form), height = HeightOf(form);
    int narrower = width, lower = height;
    for (auto const& child : children) {
        if (child.top != child.bottom) lower = std::min(lower, child.lower - child.upper - kSmallest);
        if (child.left != child.right)
            narrower = std::min(narrower, child.end - child.begin - kSmallest);
        else if (child.left == XtChainRight)
            narrower = std::min(narrower, child.begin - kMargin);
        else
            narrower = std::min(narrower, FirstBeside(child, children, width) - kMargin - child.end);
    }
    return {width - std::max(narrower, 0), lower < height ? height - std::max(lower, 0) : height};
}

void Rewiden(Widget widget, int width) {
    XtUnmanageChild(widget);
    constexpr int kWidest = 32767;  // Of a size in the X protocol.
    SetResources(widget, {{XtNwidth, std::clamp(width, 1, kWidest)}});
    XtManageChild(widget);
}

void AnchorInForm(Widget child, Anchor anchor) {
    bool const bottom = anchor == Anchor::BottomLeft || anchor == Anchor::BottomRight;
    bool const wide = anchor == Anchor::TopWide || anchor == Anchor::AllSides;
    bool const from_right = anchor == Anchor::BottomRight;
    SetResources(child, {{XtNtop, bottom ? XawChainBottom : XawChainTop},
                         {XtNleft, from_right ? XawChainRight : XawChainLeft},
                         {XtNbottom, bottom || anchor == Anchor::AllSides ? XawChainBottom : XawChainTop},
                         {XtNright, from_right || wide ? XawChainRight : XawChainLeft}});
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
