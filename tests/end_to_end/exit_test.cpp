#include <fstream>

#include "tests/support/program_test.h"

namespace {

class Exit : public ProgramTest {
  protected:
    void ShowOne() {
        Start();
        Play("initialize\nrequest id=1 title=One cancellable\nwait window ActionRequestDialog");
    }
    // The report comes twice.
    void ExpectReport(std::string const& text, int code) {
        auto const report =
            "expect ClientUIErrorMessage DebugString=\"" + text + "\" ErrorCode=" + std::to_string(code);
        Play(report + "\n" + report + "\nexpect exit 0");
    }
};

}  // namespace

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
    ShowOne();
    Display().Kill();
    Play("expect exit 0");
}

TEST_F(Exit, TheCloseButtonEndsTheProgramWithoutAnAnswer) {
    Display().StartWindowManager();
    ShowOne();
    Play("close window\nwait window ActionRequestDialog gone within 1s\nexpect exit 0");
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

TEST_F(Exit, AWindowThatAnotherProgramDestroysIs255) {
    ending_ = "exit 255";
    ShowOne();
    Screen().Destroy(Screen().FindWindow("ActionRequestDialog"));
    Play("request id=2 title=Two\nexpect exit 255");
}

TEST_F(Exit, AConnectionThatTheServerCutsIsAnOrdinaryEnd) {
    ShowOne();
    Screen().KillOwner(Screen().FindWindow("ActionRequestDialog"));
    Play("expect exit 0");
}

TEST_F(Exit, AServerWithoutAFontThatFitsIsReported) {
    std::string const font = "5x7-ISO8859-1.pcf.gz";
    std::filesystem::copy_file("/usr/share/fonts/X11/misc/" + font, Directory() / font);
    std::ofstream(Directory() / "fonts.dir") << "1\n"
                                             << font << " -misc-fixed-medium-r-normal--7-70-75-75-c-50-iso8859-1\n";
    Start();
    Screen().LeaveFonts(Directory());
    Play("initialize\nrequest id=1 title=One");
    ExpectReport("noFont (XtToolkitError)", 1);
}

struct UnshowableText {
    char const* text;
    char const* dialog;
    char const* lines;
};

class Unshowable : public Exit, public ::testing::WithParamInterface<UnshowableText> {};

// In the C locale, nothing but ASCII can be shown. A brand's translation counts in it.
TEST_P(Unshowable, IsReportedByTheDialogsName) {
    Start();
    Play("support-file _brand.xlat \"Not Currently Available\\tIndisponible à présent\"\ninitialize");
    Play(GetParam().lines);
    ExpectReport(GetParam().dialog, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Text, Unshowable,
    ::testing::Values(UnshowableText{"TitleOfTheFirst", "ActionRequestDialog", "request id=1 title=é"},
                      UnshowableText{"MalformedTitle", "ActionRequestDialog", "request id=1 title=\xff"},
                      UnshowableText{"TitleOfTheNext", "ActionRequestDialog", R"(
                          request id=1 title=One
                          wait window ActionRequestDialog
                          request id=2 title=é)"},
                      UnshowableText{"DescriptionOfTheSelected", "ActionRequestDialog", R"(
                          request id=1 description=é title="As wide as the list, so that its middle is in a row"
                          request id=2 description=é
                          request id=3 description=é
                          request id=4 description=é
                          request id=5 description=é
                          wait window ActionRequestDialog
                          press form.viewport.List)"},
                      UnshowableText{"Script", "ActionDetailsDialog", R"(
                          request id=1 title=One preview=é
                          wait window ActionRequestDialog
                          select row 1
                          click form.actionDetails)"},
                      UnshowableText{"Question", "ConfirmationDialog", R"(
                          request id=1 title=One confirm=é
                          wait window ActionRequestDialog
                          click form.takeAllActions)"},
                      UnshowableText{"Message", "MessageDialog", "message id=1 title=One text=é"},
                      UnshowableText{"Notice", "QuietModeDialog", "request id=1 title=One\nquiet start=+1m end=+2m"}),
    [](auto const& of) { return of.param.text; });
