#include "tests/support/program_test.h"

// Whom the dialogs reach: somebody who works in another window, and somebody without a mouse.

// A window manager, or none, and a scenario.
class UnderManager : public ProgramTest, public testing::WithParamInterface<std::tuple<char const*, char const*>> {};

TEST_P(UnderManager, EverybodyIsReached) {
    auto const [manager, scenario] = GetParam();
    if (*manager) Display().StartWindowManager(manager);
    Play(tools::ReadFile(std::filesystem::path(REACH) / scenario));
}

INSTANTIATE_TEST_SUITE_P(Reach, UnderManager,
                         testing::Combine(testing::Values("openbox", "metacity"),
                                          testing::Values("working-elsewhere.scenario", "without-a-mouse.scenario",
                                                          "stray-keys.scenario")));

INSTANTIATE_TEST_SUITE_P(ReachAlone, UnderManager, testing::Values(std::tuple("", "without-a-manager.scenario")));

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
