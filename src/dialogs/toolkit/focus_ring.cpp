#include "dialogs/toolkit/focus_ring.h"

#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>
#include <X11/keysym.h>

#include <algorithm>
#include <optional>

namespace {

constexpr int kWheelLines = 3;

// The outline stands in the gap between neighbours: so many pixels outside the control, and so thick.
constexpr int kOutlineDistance = 1;
constexpr int kOutlineThickness = 2;

XRectangle OutlineOf(Widget widget) {
    Position x = 0, y = 0;
    XtVaGetValues(widget, XtNx, &x, XtNy, &y, nullptr);
    int const reach = kOutlineDistance + kOutlineThickness;
    int const frame = 2 * (BorderWidthOf(widget) + reach);
    return {static_cast<short>(x - reach), static_cast<short>(y - reach),
            static_cast<unsigned short>(WidthOf(widget) + frame),
            static_cast<unsigned short>(HeightOf(widget) + frame)};
}

std::optional<Move> MoveOf(KeySym key) {
    switch (key) {
        case XK_Up:
        case XK_KP_Up:
            return Move::LineUp;
        case XK_Down:
        case XK_KP_Down:
            return Move::LineDown;
        case XK_Page_Up:
        case XK_KP_Page_Up:
            return Move::PageUp;
        case XK_Page_Down:
        case XK_KP_Page_Down:
            return Move::PageDown;
        case XK_Home:
        case XK_KP_Home:
            return Move::First;
        case XK_End:
        case XK_KP_End:
            return Move::Last;
        default:
            return std::nullopt;
    }
}

bool IsWithin(Widget widget, Widget ancestor) {
    while (widget && widget != ancestor) widget = XtParent(widget);
    return widget != nullptr;
}

}  // namespace

void FocusRing::Begin(Widget form) {
    *this = FocusRing();
    form_ = form;
}

void FocusRing::SetFirst(Widget widget) {
    auto const found = std::ranges::find(controls_, widget, &Control::widget);
    first_ = focused_ = static_cast<std::size_t>(found - controls_.begin());
}

bool FocusRing::Reacts(Control const& control) const {
    Boolean mapped = False;
    XtVaGetValues(control.widget, XtNmappedWhenManaged, &mapped, nullptr);
    // A text reacts even when it is insensitive, as all are that are only read.
    return mapped && (XtIsSensitive(control.widget) || (control.scroll && !control.go));
}

Control const* FocusRing::Find(Widget widget) const {
    auto const found = std::ranges::find(controls_, widget, &Control::widget);
    return found == controls_.end() ? nullptr : &*found;
}

void FocusRing::Reset() {
    Visit(first_);
}

void FocusRing::KeepOnWhatReacts() {
    if (focused_ < controls_.size() && !Reacts(controls_[focused_])) Reset();
}

void FocusRing::SetShown(bool shown) {
    if (shown == shown_) return;
    Erase();
    shown_ = shown;
    Draw();
}

void FocusRing::Visit(std::size_t index) {
    if (index == focused_) return;
    Erase();
    focused_ = index;
    Draw();
}

void FocusRing::Advance(std::size_t step) {
    std::size_t const count = controls_.size();
    for (std::size_t i = 1; i <= count; ++i) {
        std::size_t const next = (focused_ + i * step) % count;
        if (Reacts(controls_[next])) return Visit(next);
    }
}

void FocusRing::Draw() const {
    if (!shown_ || focused_ >= controls_.size() || !XtIsRealized(form_)) return;
    Pixel colour = 0;
    XtVaGetValues(controls_[focused_].outline, XtNborderColor, &colour, nullptr);
    Display* const connection = XtDisplay(form_);
    XGCValues values{};
    values.foreground = colour;
    GC pen = XCreateGC(connection, XtWindow(form_), GCForeground, &values);
    auto const outline = OutlineOf(controls_[focused_].outline);
    for (int i = 0; i < kOutlineThickness; ++i)
        XDrawRectangle(connection, XtWindow(form_), pen, outline.x + i, outline.y + i,
                       static_cast<unsigned>(outline.width - 1 - 2 * i),
                       static_cast<unsigned>(outline.height - 1 - 2 * i));
    XFreeGC(connection, pen);
}

void FocusRing::Erase() const {
    if (!shown_ || focused_ >= controls_.size() || !XtIsRealized(form_)) return;
    auto const outline = OutlineOf(controls_[focused_].outline);
    XClearArea(XtDisplay(form_), XtWindow(form_), outline.x, outline.y, outline.width, outline.height, False);
}

bool FocusRing::HandleKey(unsigned long key, bool held) {
    if (focused_ >= controls_.size()) return false;
    switch (key) {
        case XK_Tab:
        case XK_KP_Tab:
            Advance(1);
            return true;
        case XK_ISO_Left_Tab:
            Advance(controls_.size() - 1);
            return true;
        case XK_space:
        case XK_KP_Space:
        case XK_Return:
        case XK_KP_Enter:
            return Press(&controls_[focused_], held);
        case XK_Escape:
            return Press(Find(escape_), held);
        default:
            auto const move = MoveOf(key);
            return move && GoOrScroll(*move);
    }
}

bool FocusRing::Press(Control const* control, bool held) const {
    if (!control || !control->press) return false;
    // By a copy: the press may close the dialog, and with it the ring.
    if (!held && Reacts(*control)) std::function<void()>(control->press)();
    return true;
}

bool FocusRing::GoOrScroll(Move move) const {
    auto const& control = controls_[focused_];
    if (!Reacts(control)) return true;
    if (control.go) return control.go(move), true;
    if (control.scroll) return control.scroll(move, 1), true;
    auto const text = std::ranges::find_if(controls_, [](Control const& other) { return other.scroll && !other.go; });
    if (text == controls_.end()) return false;
    text->scroll(move, 1);
    return true;
}

std::size_t FocusRing::IndexOfScrolled(Widget under) const {
    auto const found = std::ranges::find_if(
        controls_, [under](Control const& control) { return control.scroll && IsWithin(under, control.outline); });
    return static_cast<std::size_t>(found - controls_.begin());
}

void FocusRing::HandleWheel(Widget under, bool up) const {
    auto const index = IndexOfScrolled(under);
    if (index < controls_.size()) controls_[index].scroll(up ? Move::LineUp : Move::LineDown, kWheelLines);
}

void FocusRing::HandlePress(Widget under) {
    auto const index = IndexOfScrolled(under);
    if (index < controls_.size() && Reacts(controls_[index])) Visit(index);
}
