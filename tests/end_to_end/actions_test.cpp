#include <sys/personality.h>

#include "tests/support/program_test.h"
#include "tools/client_messages.h"

class Actions : public ProgramTest {
  protected:
    void SetUp() override {
        Start();
        Play("initialize");
    }
};

TEST_F(Actions, TheSelectedOneIsTaken) {
    Play(R"(
        request id=1 title=One
        request id=2 title=Two
        request id=3 title=Three
        wait window ActionRequestDialog
        select row 2
        click form.takeActions
        expect ActionTaken ID=2 IsCancel=false IsOffer=false
        select row 2
        click form.takeActions
        expect ActionTaken ID=3 IsCancel=false
    )");
}

TEST_F(Actions, OnlyACancellableOneIsCancelled) {
    Play(R"(
        request id=1 title=Must
        request id=2 title=May cancellable
        wait window ActionRequestDialog
        select row 1
        click form.cancelAction
        select row 2
        click form.cancelAction
        expect ActionTaken ID=2 IsCancel=true IsOffer=false
    )");
}

TEST_F(Actions, NothingIsTakenWithoutASelection) {
    Play(R"(
        request id=1 title=One cancellable
        wait window ActionRequestDialog
        click form.takeActions
        click form.cancelAction
        click form.takeAllActions
        expect ActionTaken ID=1 IsCancel=false
    )");
}

TEST_F(Actions, AllAreTakenInTheirOrderAndLaterOnesCanBeTaken) {
    Play(R"(
        request id=9 title=Nine
        request id=7 title=Seven
        request id=7 title="Seven again"
        wait window ActionRequestDialog
        click form.takeAllActions
        expect ActionTaken ID=9
        expect ActionTaken ID=7
        expect ActionTaken ID=7
        request id=1 title=One
        select row 1
        click form.takeAllActions
        expect ActionTaken ID=1
    )");
}

TEST_F(Actions, OneThatTheClientWithdrawsIsGone) {
    Play(R"(
        request id=1 title=One
        request id=2 title=Two
        remove offer 2
        request id=1 title="One again"
        remove action 1
        wait window ActionRequestDialog
        click form.takeAllActions
        expect ActionTaken ID=2
        expect ActionTaken ID=1
    )");
}

TEST_F(Actions, AnOverdueOneThatMustRunIsTakenByItself) {
    Play(R"(
        request id=1 title="Overdue, but may wait" deadline=-1h
        request id=2 title="Must run, later" force deadline=+10m
        request id=3 title="Must run" force deadline=-1s
        expect ActionTaken ID=3 IsCancel=false IsOffer=false
        wait window ActionRequestDialog
        click form.takeAllActions
        expect ActionTaken ID=1
        expect ActionTaken ID=2
    )");
}

TEST_F(Actions, AnotherProgramCanBringTheDialogUp) {
    Play("open\nwait window ActionRequestDialog");
}

// Reads the labels from outside, which needs fixed addresses.
TEST_F(Actions, TheCountLineFollowsTheList) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "widgets lie where no outsider can name them";
#endif
    if (personality(ADDR_NO_RANDOMIZE) == -1) GTEST_SKIP() << "this system does not let addresses be fixed";
    Play(R"(
        request id=1 title=One
        request id=2 title=Two
        wait window ActionRequestDialog
        wait widget form.actiontitle label="There are 2 pending actions."
        remove action 1
        wait widget form.actiontitle label="There is 1 pending action."
        select row 1
        wait widget form.actiontitle label=Two
        click form.takeActions
        expect ActionTaken ID=2
        wait widget form.actiontitle label="There are no pending actions."
    )");
}

TEST_F(Actions, ALongListScrolls) {
    for (int id = 1; id <= 40; ++id) Play("request title=Many id=" + std::to_string(id));
    Play(R"(
        wait window ActionRequestDialog
        drag form.viewport.vertical 0 1
        select row 3
        click form.takeActions
    )");
    EXPECT_GT(std::stoi(tools::ReadAnswer(Receive()).fields["ID"]), 30);
}
