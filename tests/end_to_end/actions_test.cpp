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
