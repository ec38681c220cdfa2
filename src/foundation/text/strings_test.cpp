#include <gtest/gtest.h>

#include <latch>
#include <thread>
#include <vector>

#include "foundation/text/shared_ustring.h"

namespace {

using Ref = UStringRef<UTF8>;
using Shared = SharedUString<UTF8>;

TEST(AutoUString, OwnsATerminatedCopyAndMovesAway) {
    AutoUString<UTF8> text(Ref("abc"));
    EXPECT_EQ(*text.end(), 0);
    AutoUString<UTF8> moved(std::move(text));
    EXPECT_EQ(moved.AsStringView(), "abc");
    EXPECT_TRUE(text.empty() && text.begin() == nullptr);
}

TEST(SharedUString, CopiesStandOverOneBufferUntilTheLastGoes) {
    auto original = std::make_unique<Shared>(Ref("abc"));
    Shared copy(*original), moved(std::move(*original)), none, assigned;
    EXPECT_TRUE(original->empty());
    original.reset();
    EXPECT_EQ(copy.begin(), moved.begin());
    assigned = copy;
    copy = none;
    EXPECT_TRUE(copy.empty() && moved == Ref("abc") && assigned == moved);
}

TEST(SharingLink, IsAloneBeforeItIsCopiedAndWhenTheCopiesHaveLeft) {
    SharingLink link;
    EXPECT_TRUE(link.Alone());
    SharingLink copy(link);
    EXPECT_FALSE(link.Alone() || copy.Alone() || copy.Leave());
    EXPECT_TRUE(link.Alone() && link.Leave());
}

TEST(SharedUString, ThreadsCopyAndDropOneStringAtTheSameTime) {
    for (int round = 0; round < 500; ++round) {
        std::latch started(4), copied(4);
        std::vector<std::jthread> threads;
        Shared text(Ref("shared by all"));
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([&] {
                started.arrive_and_wait();
                std::vector<Shared> copies(20, text);
                copied.count_down();
                EXPECT_EQ(copies.back().AsStringView(), "shared by all");
            });
        copied.wait();
    }
}

}  // namespace
