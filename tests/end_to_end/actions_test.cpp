#include "tests/support/program_test.h"
#include "tools/client_messages.h"

namespace {

class Actions : public ProgramTest {
  protected:
    void SetUp() override {
        Start();
        Play("initialize");
    }
};

}  // namespace

TEST_F(Actions, NothingIsTakenOrCancelledWithoutBeingAllowed) {
    Play(R"(
        request id=1 title=May cancellable
        request id=18446744073709551615 title=Must
        wait window ActionRequestDialog
        press form.takeActions
        press form.cancelAction
        select row 2
        press form.cancelAction
        press form.snoozeButton
        select row 1
        click form.cancelAction
        expect ActionTaken ID=1 IsCancel=true
        click form.takeActions
        expect ActionTaken ID=18446744073709551615 IsCancel=false
    )");
}

TEST_F(Actions, AnOverdueOneThatMustRunIsTakenByItself) {
    Play(R"(
        request id=1 title="Overdue, but may wait" deadline=-1h
        request id=2 title="Must run, later" force deadline=+10m
        request id=3 title="Must run" force deadline=-1s confirm="Sure?"
        expect ActionTaken ID=3 IsCancel=false IsOffer=false
        wait window ActionRequestDialog
        click form.takeAllActions
        expect ActionTaken ID=1
        expect ActionTaken ID=2
    )");
}

TEST_F(Actions, FiveHundredScroll) {
    std::string requests;
    for (int id = 1; id <= 500; ++id) requests += "request title=Many id=" + std::to_string(id) + "\n";
    Program().SendFrame(Document(requests));
    Play(R"(
        wait window ActionRequestDialog
        drag form.viewport.vertical 0 1
        select row 3
        click form.takeActions
    )");
    EXPECT_GT(std::stoi(tools::ReadAnswer(Receive()).fields["ID"]), 490);
}

// With the first and the third button.
TEST_F(Actions, TenThousandLinesOfScriptOrQuestionScroll) {
    auto const lines = Repeated("a line...\\n", 110000);
    Play("request id=1 title=Long preview=\"" + lines + "\" confirm=\"" + lines + "\"");
    Play(R"(
        wait window ActionRequestDialog
        select row 1
        click form.actionDetails
        wait window ActionDetailsDialog
        drag form.actiondetails.vScrollbar 0 0.5
        wait widget form.actiondetails displayPosition=[45]????
        drag form.actiondetails.vScrollbar 0.5 0.9 button=3
        wait widget form.actiondetails displayPosition=[89]????
        click form.ok
        wait window ActionRequestDialog
        click form.takeActions
        wait window ConfirmationDialog
        drag form.actionconfirmation.vScrollbar 0 0.5 button=3
        wait widget form.actionconfirmation displayPosition=[45]????
        drag form.actionconfirmation.vScrollbar 0.5 0.9
        wait widget form.actionconfirmation displayPosition=[89]????
        click form.ok
        expect ActionTaken ID=1
    )");
}
