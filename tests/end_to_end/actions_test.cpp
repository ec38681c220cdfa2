#include "tests/support/program_test.h"

class Actions : public ProgramTest {};

// Neither the end of a quiet period nor another program opens the list to decisions while a question stands, whose window
// leaves the buttons free here. The list itself is brought up to date.
TEST_F(Actions, WhileAQuestionStandsNothingElseIsDecided) {
    Start({}, {"-xrm", "*actionListLabel.height: 330"});
    Play(R"(
        initialize
        request id=1 title=One confirm=one
        request id=2 title=Two confirm=two
        wait window ActionRequestDialog
        click form.takeAllActions
        wait window ConfirmationDialog
        click form.ok
        wait window ConfirmationDialog again
        wait widget form.actiontitle label=Two
        request id=3 title=Three
        quiet end
        open
        wait window ActionRequestDialog
        wait widget form.actiontitle label="There are 3 pending actions."
        wait sensitive
        press form.takeAllActions
    )");
    // The second of these is answered in a tick that has seen the press.
    for (int tick = 0; tick < 2; ++tick) {
        Program().SendFrame(Overdue(4));
        Play("expect ActionTaken ID=4");
    }
    Play(R"(
        wait window ConfirmationDialog
        wait widget form.actiontitle label=Two
        click form.cancel
        wait window ActionRequestDialog
        wait sensitive form.viewport.List form.takeAllActions
    )");
}

// With the first and the third button.
TEST_F(Actions, TenThousandLinesScroll) {
    std::string const lines = Repeated("a line...\\n", 110000);
    Play("initialize\nrequest id=1 title=Long preview=\"" + lines + "\" confirm=\"" + lines + "\"");
    Play(R"(
        wait window ActionRequestDialog
        select row 1
        click form.actionDetails
        wait window ActionDetailsDialog
        wheel form.actiondetails down
        wait widget form.actiondetails displayPosition=30
        key Up
        wait widget form.actiondetails displayPosition=20
        key End
        wait widget form.actiondetails displayPosition=999??
        key Page_Up Home
        wait widget form.actiondetails displayPosition=0
        drag form.actiondetails.vScrollbar 0 0.5
        wait widget form.actiondetails displayPosition=[45]????
        drag form.actiondetails.vScrollbar 0.5 0.9 button=3
        wait widget form.actiondetails displayPosition=[89]????
        click form.ok
        wait window ActionRequestDialog
        click form.takeActions
        wait window ConfirmationDialog
        drag form.actionconfirmation.vScrollbar 0.5 0.9 button=3
        wait widget form.actionconfirmation displayPosition=[1-9]????
        click form.cancel
    )");
}
