#include "localisation/format_overrides.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

// The override of `key` in a file with that text, "-" when it has none.
Stringy Lookup(char const* text, char const* key) {
    FormatOverrideSet set(text);
    if (set.HasOverride(key)) return Stringy(set.GetOverride(key).AsStringView());
    EXPECT_THROW(set.GetOverride(key), FormatOverrideNotFound);
    return "-";
}

TEST(FormatOverrideSetTest, LinesWithATabAreEntries) {
    for (auto text : {"OK\tJa", "OK\t\tdropped\tJa", "# a comment\r\n\r\nOK\tJa\r\nNo\tNein", "OKAY\ta\nO\tb\nOK\tJa",
                      "OK\tb\nOK\tJa\nOK\tJab"})
        EXPECT_EQ(Lookup(text, "OK"), "Ja") << text;
    for (auto text : {"OK", " OK\tJa", "\xef\xbb\xbfOK\tJa"}) EXPECT_EQ(Lookup(text, "OK"), "-") << text;
    EXPECT_EQ(Lookup("\tJa", ""), "-");
    EXPECT_EQ(Lookup("OK\t", "OK"), "");
    EXPECT_EQ(Lookup("\x7f\ta\n\xc3\t b ", "\xc3"), " b ");
}

Stringy InContext(FormatOverrideContext const& context, char const* key) {
    auto text = context.Override(key, "default");
    EXPECT_EQ(context.HasOverride(key), !(text == UStringRef<UTF8>("default")));
    return Stringy(text.AsStringView());
}

TEST(FormatOverrideContextTest, TheScopeAddedLastAnswersFirst) {
    FormatOverrideSet early("a\t1\nb\t1"), late("b\t2\nc\t2");
    FormatOverrideContext context;
    auto first = std::make_unique<FormatOverrideScope>(early, context);
    FormatOverrideScope second(late, context);
    EXPECT_EQ(InContext(context, "a") + InContext(context, "b") + InContext(context, "c"), "122");
    first.reset();
    EXPECT_EQ(InContext(context, "a") + InContext(context, "b"), "default2");
}

TEST(ListTest, AWalkGoesOnWhereverNodesComeAndGo) {
    struct Node : ListNode {};
    List list;
    Node last, second, late;
    auto first = std::make_unique<Node>();
    for (Node* node : {&last, &second, first.get()}) list.PushFront(*node);
    ListIterator walk(list), slower(list);
    EXPECT_EQ(slower.Next(), first.get());
    first.reset();
    list.PushFront(late);
    EXPECT_EQ(walk.Next(), &second);
    list.Remove(last);
    EXPECT_EQ(walk.Next(), nullptr);
    EXPECT_EQ(slower.Next(), &second);
    EXPECT_EQ(ListIterator(list).Next(), &late);
}

}  // namespace
