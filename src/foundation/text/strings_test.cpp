#include <gtest/gtest.h>

#include <latch>
#include <thread>
#include <vector>

#include "foundation/text/auto_null_terminated.h"
#include "foundation/text/copied_ustring.h"
#include "foundation/text/shared_ustring.h"
#include "foundation/text/ustring_builder.h"

namespace {

using Ref = UStringRef<UTF8>;
using Shared = SharedUString<UTF8>;

TEST(UStringRef, OrdersByUnsignedUnitsAndShorterFirst) {
    for (auto [less, more] : {std::pair<Ref, Ref>{"", "a"}, {"a", "ab"}, {"a", "b"}, {"z", "\x80"}, {"\x7F", "\xFF"}}) {
        EXPECT_TRUE(less < more && !(more < less) && !(less == more)) << less.AsStringView();
        EXPECT_TRUE(less == less && !(less < less));
    }
    UTF32::Unit const small[] = {0x7FFFFFFF}, large[] = {0x80000000};
    EXPECT_TRUE(UStringRef<UTF32>(small, small + 1) < UStringRef<UTF32>(large, large + 1));
}

TEST(AutoUString, OwnsATerminatedCopyAndMovesAway) {
    AutoUString<UTF8> text(Ref("abc"));
    EXPECT_EQ(text.size(), 3u);
    EXPECT_EQ(*text.end(), 0);
    AutoUString<UTF8> moved(std::move(text));
    EXPECT_EQ(moved.AsStringView(), "abc");
    EXPECT_TRUE(text.empty() && text.begin() == nullptr);
    EXPECT_TRUE(moved.Ref().KnownValid());
    EXPECT_FALSE(MakeUString(moved.begin(), moved.end(), UTF8()).Ref().KnownValid());
    EXPECT_EQ(MakeUString(Ref("")).begin(), nullptr);
    EXPECT_STREQ(reinterpret_cast<char const*>(MakeNullTerminatedString(moved).c_str()), "abc");
    EXPECT_STREQ(AutoNullTerminated<char>().c_str(), "");
}

TEST(CopiedUString, CopiesWhole) {
    CopiedUString<UTF8> first(Ref("abc")), second(first);
    EXPECT_NE(first.Ref().begin(), second.Ref().begin());
    first = CopiedUString<UTF8>(Ref("x"));
    EXPECT_EQ(second.Ref().AsStringView(), "abc");
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
    EXPECT_TRUE(builder.MakeString().AsStringView() == expected);
    EXPECT_TRUE(builder.Ref().KnownValid());
    builder.Append(Ref(std::string_view("\xFF")));
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
    EXPECT_TRUE(Shared(AutoUString<UTF8>()).empty());
}

TEST(SharingLink, ExactlyOneOfAllSharersIsToldThatItIsTheLast) {
    SharingLink first;
    EXPECT_TRUE(first.Alone());
    SharingLink second(first), other;
    EXPECT_FALSE(first.Alone());
    second.swap(other);
    EXPECT_FALSE(other.Alone());
    EXPECT_TRUE(second.Alone());
    other = second;
    EXPECT_TRUE(first.Alone());
    EXPECT_FALSE(second.Leave());
    EXPECT_TRUE(other.Leave());
    EXPECT_FALSE(other.Leave());
}

TEST(SharedUString, ThreadsCopyAndDropOneStringAtTheSameTime) {
    for (int round = 0; round < 200; ++round) {
        std::vector<std::thread> threads;
        {
            Shared passed(Ref("shared by all")), never_copied_before(Ref("by all"));
            std::latch copied(4);
            for (int thread = 0; thread < 4; ++thread)
                threads.emplace_back([&, passed] {
                    Shared copy(never_copied_before);
                    copied.count_down();
                    std::vector<Shared> copies(20, passed);
                    EXPECT_EQ(copies.back().AsStringView(), "shared " + std::string(copy.AsStringView()));
                });
            copied.wait();
        }
        for (auto& thread : threads) thread.join();
    }
}

}  // namespace
