#include "tests/support/program_test.h"

using Exit = ProgramTest;

TEST_F(Exit, AClientGoneBeforeInitializationIsTheEndAndNoDisplayIsOpened) {
    Start({{"DISPLAY", std::nullopt}});
    Play("close\nexpect exit 0 within 4s");
}

TEST_F(Exit, WithoutADisplayItIs255) {
    ending_ = "exit 255";
    Start({{"DISPLAY", std::nullopt}});
    Play("initialize\nrequest id=1 title=One\nexpect exit 255");
}

TEST_F(Exit, AServerThatDiesIsAnOrdinaryEnd) {
    Start();
    Play("initialize\nrequest id=1 title=One\nwait window ActionRequestDialog");
    Display().Kill();
    Play("expect exit 0");
}

TEST_F(Exit, TheCloseButtonEndsTheProgramWithoutAnAnswer) {
    Display().StartWindowManager();
    Start();
    Play(R"(
        initialize
        request id=1 title=One cancellable
        wait window ActionRequestDialog
        close window
        wait window ActionRequestDialog gone within 1s
        expect exit 0
    )");
}

TEST_F(Exit, AClientThatOnlyStopsReadingIsNoticedByTheNextAnswer) {
    Start();
    Play("close reading\ninitialize\nrequest id=1 title=One force deadline=-1h\nexpect exit 0 within 8s");
}

TEST_F(Exit, AClientThatNeverReadIsNoSignal) {
    tools::ClientProcess program({PROGRAM_UNDER_TEST, {}, {{"DISPLAY", std::nullopt}}});
    program.CloseReceiving();
    EXPECT_EQ(program.WaitForEnd(std::chrono::seconds(10)), "exit 0");
}
