#include "foundation/files/file_location.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "foundation/files/file_errors.h"

namespace {

TEST(FileNameTest, SetTakesOneComponentOnly) {
    FileName name("before");
    for (Stringy const refused : {".", "..", "a/b", "/"})
        EXPECT_THROW(name.Set(refused.data(), refused.size()), IllegalFileName) << refused;
    for (Stringy const& refused : {Stringy(), Stringy(256, 'n')})
        EXPECT_THROW(name.Set(refused.data(), refused.size()), IllegalFileNameLength) << refused;
    EXPECT_EQ(name, FileName("before"));
    for (Stringy const& taken : {Stringy("..."), Stringy(255, 'n'), Stringy(" \xff\t\0", 4)})
        EXPECT_EQ(FileName(taken).AsStringView(), taken);
}

TEST(FileLocationTest, ParentChildAndRootFollowTheText) {
    Stringy parents, children;
    for (auto path : {"/", "//", "/a", "/a/b", "/a//b//", "/a/./..", "/a/../b", ".."}) {
        auto const location = MakeFileLocation(path);
        parents.append(location.Parent().AsStringView()).append(" ");
        children.append(location.Child(FileName("c")).AsStringView()).append(" ");
    }
    EXPECT_EQ(parents, "/ // / /a /a /a/. /a/..  ");
    EXPECT_EQ(children, "/c //c /a/c /a/b/c /a//b//c /a/./../c /a/../b/c ../c ");
    for (auto root : {"/", "//", "/.", "/a/./..", "/../.."}) EXPECT_TRUE(MakeFileLocation(root).IsRoot()) << root;
    for (auto other : {"/a", "/a/../b", "..", ""}) EXPECT_FALSE(MakeFileLocation(other).IsRoot()) << other;
}

TEST(FileLocationTest, NeitherEmptyNorCutPathsReachTheSystem) {
    FileLocation empty, cut(std::string_view("/\0x", 3));
    EXPECT_THROW(empty.Exists(), EmptyFileLocationError);
    EXPECT_THROW(empty.Child(FileName("c")), EmptyFileLocationError);
    EXPECT_THROW(cut.Exists(), FileIOError);
}

TEST(FileErrorTest, TheMessageNamesClassLocationsAndPlatformText) {
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
