#include "dialogs/toolkit/dialog_window.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>

#include <tuple>

#include "dialogs/toolkit/list_pane.h"
#include "dialogs/toolkit/widgets.h"
#include "tests/support/dialog_display.h"

#undef Bool
#undef None
#undef Status
#include <gtest/gtest.h>

namespace {

// A window with each kind of control, of which the list has the keyboard first.
struct DialogWindowTest : testing::Test {
    DialogWindowTest() {
        OpenDialogDisplay();
        window.Open("Title");
        text = window.AddText("text", "a", {.sensitive = true});
        list.Create(window, "viewport", 100, 100, text, Anchor::AllSides, [](int) {});
        window.SetFirstFocus(list.List());
        window.SetEscape(window.AddButton("button", "OK", [this] { ++presses; }, {.below = list.Viewport()}));
        window.Present({.asked_for = true});
    }
    ~DialogWindowTest() override { window.Close(); }

    void Key(int type, char const* name, unsigned state = 0, Time time = 0) {
        XEvent key{};
        key.type = type;
        key.xkey.display = display;
        key.xkey.window = XtWindow(text);
        key.xkey.time = time;
        key.xkey.state = state;
        key.xkey.keycode = XKeysymToKeycode(display, XStringToKeysym(name));
        // As if the press had closed the window.
        if (type == KeyRelease) key.xkey.window = DefaultRootWindow(display), XtDispatchEvent(&key);
        if (type == KeyPress) XSendEvent(display, key.xkey.window, False, KeyPressMask, &key);
        XSync(display, False);
        while (XtAppPending(app_context) & XtIMXEvent) XtAppProcessEvent(app_context, XtIMXEvent);
    }

    DialogWindow window{"Test"};
    ListPane list;
    Widget text;
    unsigned presses = 0;
};

TEST_F(DialogWindowTest, AKeyThatIsHeldDownPressesOnce) {
    for (auto [type, time, count] : {std::tuple(KeyPress, 1000u, 1u),
                                     {KeyPress, 1900u, 1u},
                                     {KeyPress, 2899u, 1u},
                                     {KeyRelease, 2900u, 1u},
                                     {KeyPress, 2901u, 2u},
                                     {KeyPress, 3901u, 3u}}) {
        Key(type, "Escape", 0, time);
        EXPECT_EQ(presses, count) << time;
    }
}

TEST_F(DialogWindowTest, AKeyOpensNoSearchWindowOverAText) {
    Key(KeyPress, "s", ControlMask);
    EXPECT_EQ(XtNameToWidget(text, "search"), nullptr);
}

TEST_F(DialogWindowTest, AKeyTurnsAPageOfTheList) {
    char const row[] = "Row";
    std::vector<AutoNullTerminated<char>> rows;
    for (int i = 0; i < 31; ++i) rows.emplace_back(row, row + 3);
    list.ShowRows(std::move(rows));
    for (char const* name : {"Home", "Next", "Next", "Prior"}) Key(KeyPress, name);
    EXPECT_EQ(HighlightedRow(list.List()), HeightOf(list.Viewport()) / (HeightOf(list.List()) / 31) - 1);
}

}  // namespace
