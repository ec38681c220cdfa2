#include "tests/support/program_test.h"

#include <sys/stat.h>

class Resources : public ProgramTest, public ::testing::WithParamInterface<char const*> {
  protected:
    // The colour of the dialog's edge, as red, green and blue.
    unsigned long Background() {
        Window const window = Screen().WaitForWindow("ActionRequestDialog", std::chrono::seconds(5));
        Screen().WaitUntilDrawn(window);
        return Screen().PixelIn(window, 1, 1) & 0xffffff;
    }
};

// In a place where the toolkit looks for users' resources, and in the one for all users.
TEST_P(Resources, OfTheInstalledExampleTakeEffect) {
    auto const file = Directory() / "XQENClientUI";
    std::filesystem::copy_file(EXAMPLE_RESOURCES, file);
    Start({{"HOME", Directory()}, {GetParam(), GetParam() == std::string("XENVIRONMENT") ? file : Directory() / "%N"}});
    Play("initialize\nrequest id=1 title=One");
    EXPECT_EQ(Background(), 0xeceff1u);
}

INSTANTIATE_TEST_SUITE_P(Place, Resources, ::testing::Values("XENVIRONMENT", "XUSERFILESEARCHPATH", "XFILESEARCHPATH"));

TEST_F(Resources, OfTheCommandLineTakeEffect) {
    Start({}, {"-xrm", "ActionRequestDialog*background: #123456"});
    Play("initialize\nrequest id=1 title=One");
    EXPECT_EQ(Background(), 0x123456u);
}

// The table of key sequences is a pipe that nobody writes to: who reads it waits for ever.
TEST_F(ProgramTest, DialogsWaitForNoInputMethod) {
    auto const table = Directory() / "Compose";
    ASSERT_EQ(mkfifo(table.c_str(), 0600), 0);
    Start({{"LC_ALL", "de_DE.UTF-8"}, {"XCOMPOSEFILE", table}});
    Play("initialize locale\nrequest id=1 title=One\nmessage id=2 title=Two");
    Play("wait window ActionRequestDialog\nwait window MessageDialog");
}
