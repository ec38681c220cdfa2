#include <gtest/gtest.h>

#include <latch>
#include <thread>
#include <vector>

#include "foundation/text/copied_ustring.h"
#include "foundation/text/shared_ustring.h"
#include "foundation/text/ustring_builder.h"

namespace {

using Ref = UStringRef<UTF8>;
using Shared = SharedUString<UTF8>;

TEST(UStringRef, OrdersByUnsignedUnitsAndShorterFirst) {
    for (auto [less, more] : {std::pair<Ref, Ref>{"", "a"}, {"a", "ab"}, {"a", "b"}, {"z", "\x80"}, {"\x7F", "\xFF"}})
        EXPECT_TRUE(less < more && !(more < less) && !(less == more) && less == less) << less.AsStringView();
    UTF32::Unit const small[] = {0x7FFFFFFF}, large[] = {0x80000000};
    EXPECT_TRUE(UStringRef<UTF32>(small, small + 1) < UStringRef<UTF32>(large, large + 1));
}

TEST(AutoUString, OwnsATerminatedCopyAndMovesAway) {
    AutoUString<UTF8> text(Ref("abc"));
    EXPECT_EQ(*text.end(), 0);
    AutoUString<UTF8> moved(std::move(text));
    EXPECT_EQ(moved.AsStringView(), "abc");
    EXPECT_TRUE(text.empty() && text.begin() == nullptr);
    EXPECT_TRUE(moved.Ref().KnownValid());
    EXPECT_FALSE(MakeUString(moved.begin(), moved.end(), UTF8()).Ref().KnownValid());
    EXPECT_EQ(MakeUString(Ref("")).begin(), nullptr);
}

TEST(CopiedUString, CopiesWhole) {
    CopiedUString<UTF8> first(Ref("abc")), second(first);
    EXPECT_NE(first.Ref().begin(), second.Ref().begin());
    first = CopiedUString<UTF8>(Ref("x"));
    EXPECT_TRUE(first == CopiedUString<UTF8>(Ref("x")) && second == CopiedUString<UTF8>(Ref("abc")));
}

TEST(UStringBuilder, GrowsToAtLeastTwiceAndKeepsItsContent) {
    UStringBuilder<UTF8> builder;
    Stringy expected;
    auto moves = 0;
    for (int round = 0; round < 100000; ++round) {
        auto before = builder.Ref().begin();
        builder.Append("abc");
        expected += "abc";
        moves += builder.Ref().begin() != before;
    }
    EXPECT_LE(moves, 18);
    EXPECT_TRUE(builder.MakeString().AsStringView() == expected && builder.Ref().KnownValid());
    builder.Append(Ref(std::string_view("\xFF")));
    builder.Append("abc");
    EXPECT_FALSE(builder.MakeString().Ref().KnownValid());
    builder.Clear();
    EXPECT_TRUE(builder.MakeString().empty());
}

TEST(SharedUString, CopiesStandOverOneBufferUntilTheLastGoes) {
    auto original = std::make_unique<Shared>(Ref("abc"));
    Shared copy(*original), moved(std::move(*original)), none, assigned;
    EXPECT_TRUE(original->empty());
    original.reset();
    EXPECT_EQ(copy.begin(), moved.begin());
    assigned = copy;
    copy = none;
    moved = Shared(std::move(assigned));
    assigned = moved;
    moved = static_cast<Shared const&>(moved);
    EXPECT_TRUE(copy.empty() && moved == Ref("abc") && assigned == moved);
}

TEST(SharingLink, ExactlyOneOfAllSharersIsToldThatItIsTheLast) {
    SharingLink first, second(first), other;
    EXPECT_FALSE(first.Alone());
    second.swap(other);
    EXPECT_TRUE(second.Alone() && !other.Alone());
    other = second;
    EXPECT_TRUE(first.Alone());
    EXPECT_FALSE(second.Leave());
    EXPECT_TRUE(other.Leave());
    EXPECT_FALSE(other.Leave());
}

TEST(SharedUString, ThreadsCopyAndDropOneStringAtTheSameTime) {
    for (int round = 0; round < 200; ++round) {
        std::latch copied(4);
        std::vector<std::jthread> threads;
        Shared text(Ref("shared by all"));
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([&] {
                std::vector<Shared> copies(20, text);
                copied.count_down();
                EXPECT_EQ(copies.back().AsStringView(), "shared by all");
            });
        copied.wait();
    }
}

}  // namespace
