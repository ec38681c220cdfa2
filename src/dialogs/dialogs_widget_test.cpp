#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/Text.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_details_dialog.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/confirmation_dialog.h"
#include "dialogs/message_dialogs.h"
#include "dialogs/quiet_mode_dialog.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/dialog_window.h"
#include "dialogs/toolkit/list_pane.h"
#include "dialogs/toolkit/read_only_text.h"
#include "dialogs/toolkit/widgets.h"
#include "tests/support/dialog_display.h"

#undef Bool
#undef None
#undef Status
#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The dialogs in process on a virtual display, without a window manager.

namespace {

class DialogsTest : public testing::Test {
  protected:
    void SetUp() override { OpenDialogDisplay(); }
    void TearDown() override {
        actions.Clear();
        m_askedAbout.reset();
        HideActionRequestDialog();
        HideConfirmationRequestDialog();
        RemoveQuietModeDialog();
        Commands();
    }

    void Pend(int count, std::function<void(ActionRequest&)> change = {}) {
        actions.Clear();
        for (int i = 0; i < count; ++i) {
            ActionRequest action;
            action.id = static_cast<unsigned long long>(i);
            action.SetTitle(("Action " + std::to_string(i)).c_str());
            if (change) change(action);
            actions.Append(action);
        }
    }
    void Show() { ShowActionRequestDialog(false, TimeInterval::Minutes(15), true); }
    void Refresh() {
        UpdateActionRequestDialog();
        RefreshActionRequestDialog();
        Settle();
    }

    // Lets the toolkit handle what the server has sent.
    static void Settle() {
        XSync(display, False);
        while (XtAppPending(app_context) & XtIMXEvent) {
            XtAppProcessEvent(app_context, XtIMXEvent);
            XSync(display, False);
        }
    }

    // The shells of this name that are on the screen.
    static std::vector<Widget> Shells(std::string const& name) {
        Settle();
        Window root, parent, *children = nullptr;
        unsigned count = 0;
        XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count);
        std::vector<Widget> found;
        for (unsigned i = 0; i < count; ++i) {
            Widget shell = XtWindowToWidget(display, children[i]);
            if (shell && XtName(shell) == name) found.push_back(shell);
        }
        XFree(children);
        return found;
    }
    static Widget Find(Widget shell, char const* path) {
        Widget found = XtNameToWidget(shell, path);
        EXPECT_NE(found, nullptr) << path;
        return found;
    }
    static Widget InDialog(char const* path) { return Find(ActionRequestDialogShell(), path); }
    static Widget ListIn(char const* viewport) {
        WidgetList children = nullptr;
        Cardinal count = 0;
        XtVaGetValues(InDialog(viewport), XtNchildren, &children, XtNnumChildren, &count, nullptr);
        return *std::find_if(children, children + count, [](Widget w) { return XtClass(w) == listWidgetClass; });
    }
    static void SelectRow(int row) {
        XawListHighlight(ListIn("form.viewport"), row);
        XEvent released{};
        XtCallActionProc(ListIn("form.viewport"), "PostponeListSelect", &released, nullptr, 0);
    }
    static XRectangle AreaOf(Widget widget) {
        Position x = 0, y = 0;
        XtVaGetValues(widget, XtNx, &x, XtNy, &y, nullptr);
        int const borders = 2 * BorderWidthOf(widget);
        return {x, y, static_cast<unsigned short>(WidthOf(widget) + borders),
                static_cast<unsigned short>(HeightOf(widget) + borders)};
    }
    // The children of a form neither leave it nor touch each other.
    static void ExpectApart(Widget form) {
        WidgetList children = nullptr;
        Cardinal count = 0;
        XtVaGetValues(form, XtNchildren, &children, XtNnumChildren, &count, nullptr);
        Region taken = XCreateRegion();
        for (Widget child : std::span(children, count)) {
            XRectangle area = AreaOf(child);
            EXPECT_EQ(XRectInRegion(taken, area.x, area.y, area.width, area.height), RectangleOut) << XtName(child);
            XUnionRectWithRegion(&area, taken, taken);
            EXPECT_TRUE(area.x >= 0 && area.x + area.width <= WidthOf(form)) << XtName(child);
            EXPECT_TRUE(area.y >= 0 && area.y + area.height <= HeightOf(form)) << XtName(child);
        }
        XDestroyRegion(taken);
    }
    static std::string Text(Widget widget, char const* resource) {
        char* text = nullptr;
        XtVaGetValues(widget, resource, &text, nullptr);
        return text ? text : "";
    }
    static void PressAt(Widget widget, unsigned button, int x, int y) {
        XEvent press{};
        press.type = ButtonPress;
        press.xbutton.display = display;
        press.xbutton.window = XtWindow(widget);
        press.xbutton.button = button;
        press.xbutton.x = x;
        press.xbutton.y = y;
        XtDispatchEvent(&press);
    }
    static void Press(Widget button) {
        XtCallCallbacks(button, XtNcallback, nullptr);
        Settle();
    }
    static std::vector<std::pair<UICommandType, unsigned long long>> Commands() {
        FiFoQueue<std::unique_ptr<UICommand>> queued;
        uiCommandQ.ReadMessages(queued);
        std::vector<std::pair<UICommandType, unsigned long long>> commands;
        while (!queued.IsEmpty()) {
            auto command = queued.TakeFront();
            commands.emplace_back(command->Type(), command->ActionID());
        }
        return commands;
    }
};

TEST_F(DialogsTest, AnotherProgramThatIsStillAnsweredOutlivesTheDialog) {
    Window const asking = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
    Show();
    XtRegisterDrawable(display, asking, ActionRequestDialogShell());
    HideActionRequestDialog();
    XEvent gone{};
    gone.type = PropertyNotify;
    gone.xproperty.display = display;
    gone.xproperty.window = asking;
    EXPECT_TRUE(XtDispatchEvent(&gone)) << "nobody else has it";
    XtUnregisterDrawable(display, asking);
    XDestroyWindow(display, asking);
}

MessageRequest Message(unsigned long long id, NullOr<TimeInterval> timeout = {}) {
    MessageRequest request;
    request.id = id;
    request.title = SharedUString<UTF8>(UStringRef<UTF8>("\"{x}\""));
    request.timeout = timeout;
    return request;
}

TEST_F(DialogsTest, EveryControlIsWholeAndApartAtAnySizeWhateverIsShown) {
    Pend(3, [](ActionRequest& action) { action.preview = SharedUString<UTF8>(); });
    Show();
    Widget const shell = ActionRequestDialogShell(), list = InDialog("form.viewport");
    int smallest_width = 0, smallest_height = 0;
    XtVaGetValues(shell, XtNminWidth, &smallest_width, XtNminHeight, &smallest_height, nullptr);
    auto const before = AreaOf(InDialog("form.takeActions"));
    for (auto [width, height] :
         {std::pair(WidthOf(shell), HeightOf(shell)), {1200, 900}, {smallest_width, smallest_height}})
        for (int count : {1, 3, 20, 0, 3000, 1}) {
            SCOPED_TRACE(testing::Message() << count << " in " << width << "x" << height);
            XResizeWindow(display, XtWindow(shell), static_cast<unsigned>(width), static_cast<unsigned>(height));
            Pend(count);
            Refresh();
            if (count) SelectRow(0);
            EXPECT_EQ(std::pair(WidthOf(shell), HeightOf(shell)), std::pair(width, height));
            EXPECT_LE(HeightOf(ListIn("form.viewport")), 32767);
            for (Widget wide : {list, InDialog("form.actiontitle"), InDialog("form.actiondesc")})
                EXPECT_EQ(AreaOf(wide).width + 2 * 4, width) << XtName(wide) << " has all of it";
            int row = 0;
            XtVaGetValues(ListIn("form.viewport"), XtNlongest, &row, nullptr);
            EXPECT_GE(row, width - 40) << "from edge to edge";
            auto const now = AreaOf(InDialog("form.takeActions"));
            EXPECT_EQ(std::pair(now.x, now.width), std::pair(before.x, before.width));
            ExpectApart(InDialog("form"));
        }
}

TEST_F(DialogsTest, AnEmptiedDialogIsFilledAgain) {
    Pend(2);
    Show();
    SelectRow(1);
    EXPECT_EQ(Text(InDialog("form.actiontitle"), XtNlabel), "Action 1");
    Pend(0);
    UpdateActionRequestDialog();
    Pend(2);
    Refresh();
    EXPECT_EQ(Text(InDialog("form.actiontitle"), XtNlabel), "There are 2 pending actions.") << "nothing is selected";
    EXPECT_EQ(HighlightedRow(ListIn("form.viewport")), -1);
    XawListHighlight(ListIn("form.viewport"), 1);
    Refresh();
    EXPECT_EQ(HighlightedRow(ListIn("form.viewport")), 1) << "pressed, not yet released";
}

TEST_F(DialogsTest, ADisabledDialogKeepsItsListAndHearsNothing) {
    Pend(2);
    Show();
    Press(InDialog("form.takeAllActions"));
    EXPECT_EQ(Commands(), (std::vector{std::pair(UICommandType::TakeAll, 0ULL)}));
    EXPECT_FALSE(XtIsSensitive(InDialog("form.takeAllActions")) || XtIsSensitive(ListIn("form.viewport")));
    Pend(5);
    Refresh();
    EXPECT_EQ(Text(InDialog("form.actiontitle"), XtNlabel), "There are 2 pending actions.");
    EnableActionRequestDialog();
    RefreshActionRequestDialog();
    EXPECT_EQ(Text(InDialog("form.actiontitle"), XtNlabel), "There are 5 pending actions.");
    EXPECT_TRUE(XtIsSensitive(ListIn("form.viewport")));
    SelectRow(3);
    Press(InDialog("form.takeActions"));
    EXPECT_EQ(Commands(), (std::vector{std::pair(UICommandType::Take, 3ULL)}));
    EnableActionRequestDialog();
    RefreshActionRequestDialog();
    EXPECT_EQ(HighlightedRow(ListIn("form.viewport")), 3) << "which row is still the selected one can be seen";
}

TEST_F(DialogsTest, ADescriptionThatGoesOnStaysWhereItIsRead) {
    auto describe = [this](std::string const& text) {
        Pend(2,
             [&](ActionRequest& action) { action.SetDescription(UStringRef<UTF8>(text + std::to_string(action.id))); });
    };
    auto top = [] {
        XawTextPosition position = -1;
        XtVaGetValues(InDialog("form.actiondesc"), XtNdisplayPosition, &position, nullptr);
        return position;
    };
    describe("1\n2\n3\n4\n5\n6\n7 s");
    Show();
    SelectRow(0);
    SetResources(InDialog("form.actiondesc"), {{XtNinsertPosition, 6}, {XtNdisplayPosition, 6}});
    for (auto* text : {"1\n2\n3\n4\n5\n6\n6 s", "1\n2\n3\n4\n5\n6\n5 s"}) {
        describe(text);
        Refresh();
        EXPECT_EQ(top(), 6) << text;
    }
    SelectRow(1);
    EXPECT_EQ(top(), 0);
}

TEST_F(DialogsTest, TheProposedChoiceIsHighlightedAndInView) {
    Pend(1);
    Show();
    for (int refreshes = 0; refreshes < 3; ++refreshes) {
        Widget const list = ListIn("form.snoozeViewport");
        EXPECT_EQ(HighlightedRow(list), 3);
        int x, y;
        Window child;
        // Where the server has it, not where the toolkit believes it to be.
        XTranslateCoordinates(display, XtWindow(list), XtWindow(InDialog("form.snoozeViewport")), 0, 0, &x, &y, &child);
        EXPECT_EQ(y, -3 * HeightOf(list) / 17) << refreshes;
        Refresh();
    }
    SetSensitive(ListIn("form.snoozeViewport"), false);
    PressAt(ListIn("form.snoozeViewport"), Button4, 5, 5);
    EXPECT_EQ(AreaOf(ListIn("form.snoozeViewport")).y, 0) << "three rows up";
    PressAt(ListIn("form.viewport"), Button1, WidthOf(ListIn("form.viewport")) - 5, 5);
    EXPECT_EQ(HighlightedRow(ListIn("form.viewport")), 0) << "a row answers from edge to edge";
    for (int count : {30, 31}) {
        Pend(count);
        Refresh();
        if (count == 30) PressAt(InDialog("form.viewport.vertical"), Button5, 5, 5);
    }
    Widget const list = ListIn("form.viewport");
    EXPECT_LT(AreaOf(list).y, 0) << "another row scrolls nobody back";
}

TEST_F(DialogsTest, AConfirmationIsAnsweredOnceAndIsNeverNarrowerThanItsExplanation) {
    Pend(2, [](ActionRequest& action) { action.pre_action_message = SharedUString<UTF8>(UStringRef<UTF8>("Sure?")); });
    m_askedAbout = *std::next(actions.begin());
    m_askedAbout->SetTitle("Another of its ID");
    for (auto [button, answer] : {std::pair("form.ok", UICommandType::ConfirmationAccepted),
                                  {"form.cancel", UICommandType::ConfirmationDeclined}}) {
        ShowConfirmationRequestDialog(1);
        ShowConfirmationRequestDialog(0);
        auto const shells = Shells("ConfirmationDialog");
        ASSERT_EQ(shells.size(), 1u);
        EXPECT_GE(WidthOf(Find(shells[0], "form.actionconfirmation")), WidthOf(Find(shells[0], "form.staticlabel")));
        EXPECT_EQ(Text(Find(shells[0], "form.actiontitle"), XtNlabel), "Another of its ID");
        Press(Find(shells[0], button));
        EXPECT_EQ(Commands(), (std::vector{std::pair(answer, 1ULL)}));
        EXPECT_TRUE(Shells("ConfirmationDialog").empty());
    }
}

TEST_F(DialogsTest, AConfirmationStaysOnTheDisplayWhateverItsTitle) {
    std::string many_lines, words;
    for (int i = 0; i < 5000; ++i) many_lines += "line\r\n\t", words += "some words ";
    for (auto const& title : {std::string(1000, 'w'), std::string(70000, 'w'), many_lines, words, std::string()}) {
        Pend(1, [title = title.c_str()](ActionRequest& action) { action.SetTitle(title); });
        ShowConfirmationRequestDialog(0);
        Widget const shell = Shells("ConfirmationDialog").at(0);
        EXPECT_LE(WidthOf(shell), WidthOfScreen(XtScreen(shell)));
        EXPECT_LE(HeightOf(shell), 300);
        ExpectApart(Find(shell, "form"));
        EXPECT_EQ(Text(Find(shell, "form.actiontitle"), XtNlabel).find_first_of("\r\t"), std::string::npos);
        HideConfirmationRequestDialog();
    }
}

TEST_F(DialogsTest, LineEndsOfOtherSystemsAndUnencodableTitlesDoNoHarm) {
    Pend(1, [](ActionRequest& action) {
        action.SetTitle("a\r\nb\tc\xF4\x90\x80\x80");
        action.SetDescription("one\r\ntwo\r");
    });
    Show();
    SelectRow(0);
    EXPECT_THAT(Text(InDialog("form.actiontitle"), XtNlabel), testing::StartsWith("a  b c"));
    XawListReturnStruct* const row = XawListShowCurrent(ListIn("form.viewport"));
    EXPECT_THAT(row->string, testing::StartsWith("a  b c"));
    XtFree(reinterpret_cast<char*>(row));
    EXPECT_THAT(Text(InDialog("form.actiondesc"), XtNstring), testing::StartsWith("one\ntwo\n"));
    auto message = Message(1);
    message.title = actions.begin()->title;
    for (auto const& each : {Message(1), message}) ShowMessageDialog(each);
    ASSERT_EQ(Shells("MessageDialog").size(), 1u);
    XTextProperty name{};
    Atom const kind = XInternAtom(display, "_NET_WM_NAME", False);
    EXPECT_FALSE(XGetTextProperty(display, XtWindow(Shells("MessageDialog")[0]), &name, kind)) << "of the title before";
    RemoveMessageDialog(1);
}

TEST_F(DialogsTest, APreviewOfAnActionThatIsGoneShowsTheLastScript) {
    Pend(1, [](ActionRequest& action) { action.preview = SharedUString<UTF8>(UStringRef<UTF8>("echo")); });
    for (auto const* script : {"echo", "echo", ""}) {
        ShowActionDetailsDialog(0);
        EXPECT_EQ(Text(Find(Shells("ActionDetailsDialog").at(0), "form.actiondetails"), XtNstring), script);
        HideActionDetailsDialog();
        actions.empty() ? Pend(1) : actions.Clear();
    }
}

TEST_F(DialogsTest, TheQuietNoticeKeepsItsFirstTimesAndIsNoAnswerWhenItGoes) {
    ShowQuietModeDialog(Instant(0), Instant(1'000'000));
    ShowQuietModeDialog(Instant(0), Instant(2'000'000));
    auto const shells = Shells("QuietModeDialog");
    ASSERT_EQ(shells.size(), 1u);
    EXPECT_THAT(Text(Find(shells[0], "form.staticlabel"), XtNlabel), testing::EndsWith(":01."));
    RemoveQuietModeDialog();
    EXPECT_TRUE(Shells("QuietModeDialog").empty() && Commands().empty());
}

TEST_F(DialogsTest, MessagesAreKnownByTheirIDsAndAnUpdateDecidesWhetherTheyEnd) {
    auto completed = Message(1);
    completed.is_completion_message = true;
    auto* const connection = std::exchange(display, nullptr);
    for (auto const& waiting : {completed, Message(2)}) ShowMessageDialog(waiting);
    display = connection;
    OpenWaitingMessageDialogs();
    Widget const first = Shells("MessageDialog").at(0);
    EXPECT_EQ(Text(first, XtNtitle), "Corvane notification:");
    EXPECT_EQ(Text(Find(first, "form.actionmessage"), XtNstring), "Action \"\"{x}\"\" has completed.");
    std::size_t const count = 200;
    for (unsigned long long id = 1; id <= count; ++id)
        ShowMessageDialog(Message(id, TimeInterval(id == 8 ? -1 : INT64_MAX)));
    for (unsigned long long id : {7, 9}) ShowMessageDialog(Message(id, TimeInterval(0)));
    ShowMessageDialog(Message(8));
    EXPECT_EQ(Shells("MessageDialog").size(), count);
    RemoveTimedoutMessageDialogs();
    EXPECT_EQ(Shells("MessageDialog").size(), count - 2);
    Widget const dismissed = Shells("MessageDialog")[0];
    Press(Find(dismissed, "form.dismiss"));
    EXPECT_THAT(Shells("MessageDialog"), testing::Not(testing::Contains(dismissed)));
    for (int time = 0; time < 2; ++time) RemoveMessageDialog(100);
    EXPECT_EQ(Shells("MessageDialog").size(), count - 4);
    for (unsigned long long id = 1; id <= count; ++id) RemoveMessageDialog(id);
    EXPECT_TRUE(Shells("MessageDialog").empty() && Commands().empty());
}

}  // namespace
