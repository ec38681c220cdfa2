#include <sys/stat.h>

#include "tests/support/program_test.h"

class Resources : public ProgramTest {
  protected:
    // The colour of the dialog's edge, as red, green and blue.
    unsigned long Background() {
        Play("initialize\nrequest id=1 title=One");
        Window const window = Screen().WaitForWindow("ActionRequestDialog", std::chrono::seconds(5));
        Screen().WaitUntilDrawn(window);
        return Screen().PixelIn(window, 1, 1) & 0xffffff;
    }
};

// In a place where the toolkit looks for users' resources.
TEST_F(Resources, OfTheInstalledExampleTakeEffect) {
    std::filesystem::copy_file(EXAMPLE_RESOURCES, Directory() / "XQENClientUI");
    Start({{"XUSERFILESEARCHPATH", Directory() / "%N"}});
    EXPECT_EQ(Background(), 0xeceff1u);
}

TEST_F(Resources, ThatTakeAwayAllWidthAndReactionCostNoAnswer) {
    Start({}, {"-xrm", "*columnSpacing: 0", "-xrm", "*internalWidth: 0", "-xrm", "*List.list: none", "-xrm",
               "*sensitive: false"});
    Play(R"(
        support-file _brand.xlat "This action requires you to acknowledge the following confirmation message:\t{_lf}"
        initialize
        request id=1 title="" confirm=""
        wait window ActionRequestDialog
        click form.takeAllActions
        wait window ConfirmationDialog
        click form.ok
        expect ActionTaken ID=1
    )");
}

// The table of key sequences is a pipe that nobody writes to: who reads it waits for ever.
TEST_F(Resources, NoneIsTakenByAnInputMethod) {
    auto const table = Directory() / "Compose";
    ASSERT_EQ(mkfifo(table.c_str(), 0600), 0);
    Start({{"LC_ALL", "de_DE.UTF-8"}, {"XCOMPOSEFILE", table}});
    Play("initialize locale\nrequest id=1 title=One\nmessage id=2 title=Two");
    Play("wait window ActionRequestDialog\nwait window MessageDialog");
}
