#include "foundation/files/file_location.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>

#include "foundation/files/file_errors.h"

namespace {

TEST(FileName, IsOneComponentAndOneByteShorterWhenJoined) {
    FileName name("before");
    for (Stringy const refused : {".", "..", "a/b", "/"}) EXPECT_THROW(name = FileName(refused), IllegalFileName);
    for (Stringy const& refused : {Stringy(), Stringy(256, 'n')})
        EXPECT_THROW(name.Set(refused.data(), refused.size()), IllegalFileNameLength) << refused;
    EXPECT_EQ(name, FileName("before"));
    Stringy const longest(255, 'n');
    for (Stringy const& taken : {Stringy("..."), longest, Stringy(" \xff\t\0", 4)})
        EXPECT_EQ(FileName(taken).AsStringView(), taken);
    FileName const most(longest.substr(5));
    EXPECT_EQ((most + "nnnn").AsStringView(), longest.substr(1));
    EXPECT_THROW(most + ".xlat", IllegalFileName);
}

TEST(FileLocation, HasItsParentAndChildByItsText) {
    using Case = std::array<char const*, 3>;
    for (auto [path, parent, child] : {Case{"/", "/", "/c"},
                                       {"//", "//", "//c"},
                                       {"/a//b//", "/a", "/a//b//c"},
                                       {"/a/./..", "/a/.", "/a/./../c"},
                                       {"..", "", "../c"}}) {
        EXPECT_EQ(MakeFileLocation(path).Parent().AsStringView(), parent);
        EXPECT_EQ(MakeFileLocation(path).Child(FileName("c")).AsStringView(), child);
    }
    for (auto root : {"/", "//", "/.", "/a/./..", "/../.."}) EXPECT_TRUE(MakeFileLocation(root).IsRoot()) << root;
    for (auto other : {"/a", "/a/../b", "..", ""}) EXPECT_FALSE(MakeFileLocation(other).IsRoot()) << other;
}

TEST(FileLocation, ReachesTheSystemNeitherEmptyNorCut) {
    FileLocation const empty, cut(std::string_view("/\0x", 3));
    EXPECT_THROW(empty.Exists(), EmptyFileLocationError);
    EXPECT_THROW(empty.Child(FileName("c")), EmptyFileLocationError);
    EXPECT_THROW(cut.Exists(), FileIOError);
}

TEST(FileError, NamesItsClassLocationsAndThePlatformsText) {
    auto const location = MakeFileLocation("/a");
    EXPECT_THROW(ThrowFileError(location, EPERM), FilePermissionError);
    EXPECT_THROW(ThrowFileError(location, EMFILE), FileResourceError);
    EXPECT_THROW(ThrowFileError(location, ENOTDIR), DirectoryNotFoundError);
    EXPECT_THAT([&] { ThrowFileError(location, ENOENT); },
                testing::ThrowsMessage<FileNotFoundError>(
                    "File error \"17FileNotFoundError\" on \"/a\": No such file or directory"));
    EXPECT_EQ(FileFoundError(0, "/a", "/b").MakeErrorMessage(), "File error \"14FileFoundError\" on \"/a\" and \"/b\"");
}

}  // namespace
