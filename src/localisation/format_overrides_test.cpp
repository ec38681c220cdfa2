#include "localisation/format_overrides.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <memory>

#include "foundation/files/file_errors.h"
#include "foundation/files/test_directory.h"
#include "localisation/translation_files.h"

namespace {

// The override of `key` in a file with that text, "-" when it has none.
Stringy Lookup(char const* text, char const* key) {
    FormatOverrideSet set(text);
    if (set.HasOverride(key)) return Stringy(set.GetOverride(key).AsStringView());
    EXPECT_THROW(set.GetOverride(key), FormatOverrideNotFound);
    return "-";
}

TEST(FormatOverrideSetTest, LinesWithATabAreEntries) {
    struct {
        char const *text, *key, *found;
    } const cases[] = {
        {"Cancel\tAbbrechen", "Cancel", "Abbrechen"},
        {"Cancel\t\tdropped\tAbbrechen", "Cancel", "Abbrechen"},
        {"Cancel\t", "Cancel", ""},
        {"Cancel", "Cancel", "-"},
        {"\tAbbrechen", "", "-"},
        {" Cancel\t Abbrechen ", " Cancel", " Abbrechen "},
        {"# a comment\r\n\r\nCancel\tAbbrechen\r\nOK\tJa\r\n", "OK", "Ja"},
        {"OK\tb\nOK\ta\nOK\tab", "OK", "a"},
        {"OKAY\ta\nO\tb\nOK\tc", "OK", "c"},
        {"\xef\xbb\xbfOK\tJa\nNo\tNein", "OK", "-"},
        {"\x7f\ta\n\xc3\tb", "\xc3", "b"},
    };
    for (auto const& row : cases) EXPECT_EQ(Lookup(row.text, row.key), row.found) << row.text;
}

Stringy InContext(FormatOverrideContext const& context, char const* key) {
    auto text = context.Override(key, "default");
    EXPECT_EQ(context.HasOverride(key), !(text == UStringRef<UTF8>("default")));
    return Stringy(text.AsStringView());
}

TEST(FormatOverrideContextTest, TheScopeAddedLastAnswersFirst) {
    FormatOverrideSet early("a\t1\nb\t1"), late("b\t2\nc\t2");
    FormatOverrideContext context;
    FormatOverrideScope first(early, context);
    auto second = std::make_unique<FormatOverrideScope>(late, context);
    EXPECT_EQ(InContext(context, "a") + InContext(context, "b") + InContext(context, "c"), "122");
    EXPECT_EQ(InContext(context, "d"), "default");
    second.reset();
    EXPECT_EQ(InContext(context, "b"), "1");
    EXPECT_EQ(InContext(context, "c"), "default");
}

TEST(ListTest, WalkersSurviveWhatComesAndGoes) {
    struct Node : ListNode {};
    List list;
    Node last, front;
    auto walked = std::make_unique<Node>(), ahead = std::make_unique<Node>();
    list.PushFront(last);
    list.PushFront(*ahead);
    list.PushFront(*walked);
    ListIterator walker(list);
    EXPECT_EQ(walker.Next(), walked.get());
    ListIterator slower(list);
    list.PushFront(front);
    walked.reset();
    ahead.reset();
    EXPECT_EQ(walker.Next(), &last);
    EXPECT_EQ(walker.Next(), nullptr);
    EXPECT_EQ(slower.Next(), &last);
    EXPECT_EQ(ListIterator(list).Next(), &front);
}

// The process has no translation files loaded before and after.
struct TranslationFilesTest : testing::Test, TestDirectory {
    ~TranslationFilesTest() override { DropTranslations(); }
    static Stringy Text(char const* key) { return InContext(GlobalFormatOverrideContext(), key); }
};

TEST_F(TranslationFilesTest, LaterFilesWinUntilAllAreDropped) {
    AddTranslationFile(Write("/_brand.xlat", "OK\tFine\nNo\tNope"));
    AddTranslationFile(Write("/empty.xlat", ""));
    AddTranslationFile(Write("/de.xlat", "OK\tJa"));
    EXPECT_THROW(AddTranslationFile(At("/missing")), FileNotFoundError);
    EXPECT_EQ(Text("OK") + Text("No"), "JaNope");
    EXPECT_EQ(m_formatFiles.size(), 3u);
    DropTranslations();
    EXPECT_EQ(Text("OK"), "default");
    EXPECT_TRUE(m_formatFiles.empty());
}

TEST_F(TranslationFilesTest, AFileOf4GiBIsRefusedUnread) {
    auto location = Write("/huge.xlat", "OK\tJa");
    ASSERT_EQ(truncate(location.SystemPath(), off_t(1) << 32), 0);
    EXPECT_THROW(AddTranslationFile(location), RequiredValueWouldOverflow);
}

}  // namespace
