#include "tests/support/program_test.h"

// Whom the dialogs reach: somebody who works in another window, and somebody without a mouse.

class UnderManager : public ProgramTest, public testing::WithParamInterface<char const*> {
  protected:
    void SetUp() override { Display().StartWindowManager(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(Reach, UnderManager, testing::Values("openbox", "metacity"));

TEST_P(UnderManager, WhatNobodyAskedForIsOnTopAndLeavesTheKeyboardWhereItIs) {
    Play(R"(
        initialize
        work editor
        message id=1 title=Note text=Hello
        wait window MessageDialog
        wait uppermost MessageDialog
        wait active editor
        press form.actionmessage
        wait active MessageDialog
        key Escape
        wait window MessageDialog gone
        work mail
        wait uppermost mail
        request id=1 title=One preview=echo
        wait window ActionRequestDialog
        wait uppermost ActionRequestDialog
        wait active mail
        request id=2 title=Two
        wait property WM_HINTS=259
        press form.actionListLabel
        wait active ActionRequestDialog
        wait property WM_HINTS=3
        key Down Tab Tab Tab Return
        wait window ActionDetailsDialog
        wait active ActionDetailsDialog
        key Escape
        wait window ActionDetailsDialog gone
    )");
}

// The answer to the overdue action tells that a whole tick has passed, also where no widget can be looked at.
TEST_P(UnderManager, EverythingIsDecidedWithoutAMouse) {
    Play(R"(
        initialize snooze
        work editor
        request id=1 title=One cancellable
        request id=2 title=Two confirm=Sure?
        wait window ActionRequestDialog
        wait active editor
        press form.actionListLabel
        wait active ActionRequestDialog
        key Return space Escape End
        wait widget form.actiontitle label=Two
        key Up
        wait widget form.actiontitle label=One
        key Tab Tab Tab space
        expect ActionTaken ID=1 IsCancel=true
        wait widget form.actiontitle label=Two
        key Return space Tab Tab Return
        wait window ConfirmationDialog
        wait active ConfirmationDialog
        key Return
        wait window ConfirmationDialog gone
        wait window ActionRequestDialog
        wait active ActionRequestDialog
        wait sensitive form.viewport.List form.takeAllActions form.takeActions form.snoozeViewport.List form.snoozeButton
        request id=9 title=Overdue force deadline=-1h
        expect ActionTaken ID=9
        key Tab Return
        wait window ConfirmationDialog
        wait active ConfirmationDialog
        key Tab Tab Return
        expect ActionTaken ID=2 IsCancel=false
        request id=3 title=Three
        request id=9 title=Overdue force deadline=-1h
        expect ActionTaken ID=9
        wait window ActionRequestDialog
        wait widget form.actiontitle label="There is 1 pending action."
        key Shift+Tab Shift+Tab Shift+Tab Down Tab Return
        expect RemindTime TimeObject=+5m
        expect RemindInterval TimeInterval=PT5M
        wait active editor
        open
        wait window ActionRequestDialog
        wait active ActionRequestDialog
    )");
}

// Who types without looking, or what was meant for another window, or for what stood there a moment ago.
TEST_P(UnderManager, AStrayKeyDecidesNothing) {
    Play(R"(
        initialize
        request id=1 title=One cancellable
        request id=2 title=Two cancellable
        request id=3 title=Three confirm=Sure?
        wait window ActionRequestDialog
        press form.actionListLabel
        wait active ActionRequestDialog
        wait focus form.viewport
        key Tab
        wait focus form.takeAllActions
        select row 1
        wait focus form.viewport
        key space Tab Tab Control+Return Control+space
        message id=4 title=Note text=Hello
        wait window MessageDialog
        press form.actionmessage
        wait active MessageDialog
        key Escape
        wait window ActionRequestDialog
        wait active ActionRequestDialog
        wait focus form.viewport
        key Return Tab Tab
        remove action 1
        wait focus form.viewport
        key Return Tab Tab Tab space
        expect ActionTaken ID=2 IsCancel=true
        wait focus form.viewport
        key Return Tab Tab Return
        wait window ConfirmationDialog
        wait focus form.cancel
        key Tab Return Escape
        wait window ConfirmationDialog gone
        request id=9 title=Overdue force deadline=-1h
        expect ActionTaken ID=9
    )");
}

class WithoutAManager : public ProgramTest {};

TEST_F(WithoutAManager, TheKeyboardGoesWhereTheUserPressesAndComesBack) {
    Play(R"(
        initialize
        request id=1 title=One confirm=Sure?
        wait window ActionRequestDialog
        press form.actionListLabel
        wait focus form.viewport
        key Down Tab Tab Return
        wait window ConfirmationDialog
        wait focus form.cancel
        key Escape
        wait window ConfirmationDialog gone
        wait window ActionRequestDialog
        wait focus form.viewport
    )");
}

class OnASmallDisplay : public ProgramTest, public testing::WithParamInterface<bool> {
  protected:
    OnASmallDisplay() : ProgramTest("640x480") {}
};
INSTANTIATE_TEST_SUITE_P(Reach, OnASmallDisplay, testing::Values(true, false));

// With letters of 24 pixels, or with translations of 300 letters.
TEST_P(OnASmallDisplay, EveryButtonIsInReach) {
    std::string const large = "*fontSet: -*-fixed-medium-r-normal--24-*,*";
    Start({}, GetParam() ? std::vector<std::string>{"-xrm", large} : std::vector<std::string>{});
    std::string lines;
    for (auto text : {"OK", "Cancel", "Take Action", "Take Actions", "Take All Actions", "Snooze",
                      "This action requires you to acknowledge the following confirmation message:"})
        lines += std::string(text) + "\t" + Repeated("wide ", 300) + "\n";
    if (!GetParam()) Play("support-file _brand.xlat \"" + Replaced(Replaced(lines, "\t", "\\t"), "\n", "\\n") + "\"");
    Play(R"(
        initialize snooze
        request id=1 title=One confirm=Sure?
        wait window ActionRequestDialog
        select row 1
        click form.takeActions
        wait window ConfirmationDialog
        click form.cancel
        wait window ActionRequestDialog
        click form.takeActions
        wait window ConfirmationDialog again
        click form.ok
        expect ActionTaken ID=1
        message id=2 title=Two text=Two
        wait window MessageDialog
        click form.dismiss
        request id=3 title=Three
        wait window ActionRequestDialog
        click form.snoozeButton
        expect RemindTime
        expect RemindInterval
    )");
}
