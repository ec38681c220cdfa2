#include <array>

#include "tests/support/program_test.h"

namespace {

class Exit : public ProgramTest {
  protected:
    void ShowOne(std::string const& fields = "title=One cancellable") {
        Play("initialize\nrequest id=1 " + fields + "\nwait window ActionRequestDialog");
    }
    // The report comes twice.
    void ExpectReport(std::string const& fields) {
        auto const report = "expect ClientUIErrorMessage DebugString=" + fields + "\n";
        Play(report + report + "expect exit 0");
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
    Screen().SendProtocol(Screen().FindWindow("ActionRequestDialog"), "WM_TAKE_FOCUS");
    Play("request id=2 title=Two force deadline=-1h\nexpect ActionTaken ID=2");
    Play("close window\nwait window ActionRequestDialog gone within 1s\nexpect exit 0");
}

TEST_F(Exit, AClientThatOnlyStopsReadingIsNoticedByTheNextAnswer) {
    Play("close reading\ninitialize\nrequest id=1 title=One force deadline=-1h\nexpect exit 0 within 8s");
}

TEST_F(Exit, AWindowThatAnotherProgramDestroysIs255) {
    ending_ = "exit 255";
    ShowOne();
    Screen().Destroy(Screen().FindWindow("ActionRequestDialog"));
    Play("request id=2 title=Two\nexpect exit 255");
}

TEST_F(Exit, AServerWithoutAFontThatFitsIsReported) {
    Start();
    Screen().LeaveFonts(Directory(), {{"5x7-ISO8859-1", "-misc-fixed-medium-r-normal--7-70-75-75-c-50-iso8859-1"}});
    Play("initialize\nrequest id=1 title=One");
    ExpectReport("\"noFont (XtToolkitError)\" ErrorCode=1");
}

// The set that is configured, and the height in pixels of a label, with its margins of 2.
class ExitAvoided : public Exit, public ::testing::WithParamInterface<std::pair<char const*, char const*>> {};

// Any set that does not name its font begins with one that cannot be opened.
TEST_P(ExitAvoided, ByTheLowestFontSetWhereTheConfiguredOneDoesNotWork) {
    Start({}, {"-xrm", "*font: -c-*", "-xrm", std::string("XtDefaultFontSet: ") + GetParam().first});
    Screen().LeaveFonts(Directory(), {{"none", "-a-fixed-medium-r-normal--13-120-75-75-c-60-iso8859-1"},
                                      {"10x20-ISO8859-1", "-b-fixed-medium-r-normal--13-120-75-75-c-60-iso8859-1"},
                                      {"5x7-ISO8859-1", "-b-fixed-medium-r-normal--13-120-75-75-c-100-iso8859-1"},
                                      {"6x13-ISO8859-1", "-c-fixed-medium-r-normal--13-120-75-75-c-60-iso8859-1"}});
    ShowOne();
    Play(std::string("wait widget form.actionListLabel height=") + GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(All, ExitAvoided, ::testing::Values(std::pair("-a-*", "11"), std::pair("-c-*", "17")));

// A name, the dialog, the fields of its action and what shows an é there.
using Unshowable = std::array<char const*, 4>;

class ExitOver : public Exit, public ::testing::WithParamInterface<Unshowable> {};

// In the C locale nothing but ASCII can be shown, and a brand's translation counts.
TEST_P(ExitOver, UnshowableTextIsReportedByTheDialogsName) {
    auto const [name, dialog, fields, lines] = GetParam();
    Play("support-file _brand.xlat \"Not Currently Available\\tIndisponible à présent\"");
    ShowOne(fields);
    Play(lines);
    ExpectReport(dialog + std::string(" ErrorCode=2"));
}

INSTANTIATE_TEST_SUITE_P(
    All, ExitOver,
    ::testing::Values(Unshowable{"Title", "ActionRequestDialog", "title=One", "request id=2 title=é"},
                      Unshowable{"Description", "ActionRequestDialog",
                                 "description=é title=\"As wide as the list, so that the pointer is in the row\"",
                                 "drag form.viewport.List 0.05 0.05"},
                      Unshowable{"Script", "ActionDetailsDialog", "title=One preview=é",
                                 "select row 1\nclick form.actionDetails"},
                      Unshowable{"Question", "ConfirmationDialog", "title=One confirm=é", "click form.takeAllActions"},
                      Unshowable{"Message", "MessageDialog", "title=One", "message id=1 title=One text=é"},
                      Unshowable{"Notice", "QuietModeDialog", "title=One", "quiet start=+1m end=+2m"}),
    [](auto const& of) { return of.param[0]; });
