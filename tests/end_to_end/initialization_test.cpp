#include "tests/support/program_test.h"

#include <fstream>

#include "tools/client_messages.h"

namespace {

class Initialization : public ProgramTest {
  protected:
    static void Write(std::filesystem::path const& file, std::string const& text) {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }
};

}  // namespace

TEST_F(Initialization, EmptiesTheBaseDirectoryAndFillsIt) {
    Write(BaseDirectory() / "old" / "deep" / "old.txt", "old");
    Play(R"(
        support-file page.html "<p>first</p>"
        support-file page.html "<p>second</p>"
        support-file _brand.xlat "Action Requests\tFirst"
        support-file _brand.xlat "Action Requests\tSecond{_tab}one\nTitle\tTi{_lf}tle"
        initialize
        open
        wait window "Second one"
        wait widget form.actionListLabel label="Ti\ntle  --  Deadline"
        support-file late.txt ""
        initialize
        request id=1 title=Overdue force deadline=-1h
        expect ActionTaken ID=1
    )");
    EXPECT_EQ(Screen().Count("QENClientUIHiddenWindow"), 1u);
    EXPECT_EQ(FilesIn(BaseDirectory()), (std::set{BaseDirectory() / "_brand.xlat", BaseDirectory() / "page.html"}));
    EXPECT_EQ(tools::ReadFile(BaseDirectory() / "page.html"), "<p>second</p>");
}

TEST_F(Initialization, RequestsBeforeItAndBesideItAreShown) {
    Play("request id=1 title=Before\nmessage id=1 title=Kept\nmessage id=2 title=Withdrawn\nremove message 2");
    auto const base = BaseDirectory() / "made" / "with its parents";
    Program().SendFrame(Document("initialize base=\"" + base.string() + "\"\nrequest id=2 title=Dropped"));
    Play(R"(
        request id=3 title=Beside
        wait window Kept
        wait window Withdrawn gone
        wait window ActionRequestDialog
        wait property WM_CLIENT_LEADER=QENClientUIHiddenWindow
        click form.takeAllActions
        expect ActionTaken ID=1
        expect ActionTaken ID=3
    )");
    EXPECT_TRUE(std::filesystem::is_directory(base));
}

// A name, and the elements: "~" stands in them for the test's directory.
using Failure = std::pair<char const*, std::string>;

class FailingInitialization : public Initialization, public ::testing::WithParamInterface<Failure> {};

// Whatever is wrong with it, it touches nothing that it need not, and the next one counts.
TEST_P(FailingInitialization, IsFollowedByOneThatSucceeds) {
    Write(Directory() / "file", "in the way");
    Write(Directory() / "full" / "old.txt", "old");
    Play("support-file a.txt a");
    auto const elements = Replaced(GetParam().second, "~", Directory().string());
    Program().SendFrame(tools::Document(tools::Element("InitializationInfo", elements)));
    // What follows in the same batch is lost, and no answer tells the batches apart.
    EXPECT_TRUE(tools::WaitUntil(std::chrono::seconds(10), [&, initialization = Document("initialize")] {
        Program().SendFrame(initialization);
        return std::filesystem::exists(BaseDirectory() / "a.txt");
    }));
    Play("request id=1 title=One force deadline=-1h\nexpect ActionTaken ID=1");
    EXPECT_EQ(tools::ReadFile(Directory() / "full" / "old.txt"), "old");
    EXPECT_EQ(tools::ReadFile(Directory() / "file"), "in the way");
    EXPECT_EQ(std::filesystem::exists(Directory() / "half" / "a"), GetParam().first == std::string("HalfDone"));
}

std::string const kInFull = "<BaseDirectory>~/full</BaseDirectory>";
std::string const kOneThenNone = tools::SupportFile("a", "a") + tools::SupportFile(std::string(256, 'b'), "b");

INSTANTIATE_TEST_SUITE_P(
    All, FailingInitialization,
    ::testing::Values(Failure("NoBase", ""), Failure("EmptyBase", "<BaseDirectory></BaseDirectory>"),
                      Failure("RelativeBase", "<BaseDirectory>full</BaseDirectory>"),
                      Failure("FileInTheWay", "<BaseDirectory>~/file/below</BaseDirectory>"),
                      Failure("HalfDone", "<BaseDirectory>~/half</BaseDirectory>" + kOneThenNone),
                      Failure("NameLeadsOut", kInFull + tools::SupportFile("../file", "over it")),
                      Failure("NoDuration",
                              kInFull + tools::Element("InitialUISettings", "<RemindInterval>soon</RemindInterval>"))),
    [](auto const& of) { return of.param.first; });

struct LocaleCase {
    char const *name, *locale, *flags;
    std::vector<std::string> files;  // each translates the window's title into its own name
    char const* title;
};

class Translations : public Initialization, public ::testing::WithParamInterface<LocaleCase> {};

TEST_P(Translations, AreChosenByTheLocale) {
    Start({{"LC_ALL", GetParam().locale}});
    for (auto const& file : GetParam().files) {
        Play("support-file " + file + " \"Action Requests\\t" + file + (file == "FR_ca.XLAT" ? " été\"" : "\""));
    }
    Play(std::string("initialize ") + GetParam().flags + "\nopen");
    Window window = Screen().WaitForWindow("ActionRequestDialog", std::chrono::seconds(10));
    EXPECT_EQ(Screen().Title(window), GetParam().title);
}

INSTANTIATE_TEST_SUITE_P(
    All, Translations,
    ::testing::Values(
        LocaleCase{"CLocale", "C", "locale", {"C.xlat", "_brand.xlat"}, "_brand.xlat"},
        LocaleCase{"LocaleNotWanted", "de_DE.UTF-8", "locale=no", {"de.xlat", "_brandde.xlat"}, "Action Requests"},
        LocaleCase{"BrandForTheLanguage", "de_DE.UTF-8", "locale", {"_brand.xlat", "_brandde.xlat"}, "_brandde.xlat"},
        LocaleCase{"GeneralOverBrand", "de_DE.UTF-8", "locale", {"de.xlat", "_brandde_DE.xlat"}, "de.xlat"},
        LocaleCase{"NameIgnoresCase", "fr_CA.ISO-8859-1", "locale", {"fr.xlat", "FR_ca.XLAT"}, "FR_ca.XLAT été"},
        LocaleCase{"UnknownToXlib", "de_XX.UTF-8", "locale", {"de.xlat", "_brand.xlat"}, "Action Requests"}),
    [](auto const& of) { return of.param.name; });
