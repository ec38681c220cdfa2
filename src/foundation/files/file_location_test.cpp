#include "foundation/files/file_location.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <utility>
#include <vector>

#include "foundation/files/file_errors.h"

namespace {

TEST(FileNameTest, SetTakesOneComponentOnly) {
    FileName name("before");
    for (Stringy const refused : {".", "..", "a/b", "/"})
        EXPECT_THROW(name.Set(refused.data(), refused.size()), IllegalFileName) << refused;
    for (Stringy const& refused : {Stringy(), Stringy(256, 'n'), Stringy(256, '/')})
        EXPECT_THROW(name.Set(refused.data(), refused.size()), IllegalFileNameLength) << refused;
    EXPECT_EQ(name, FileName("before"));
    for (Stringy const& taken : {Stringy("..."), Stringy(255, 'n'), Stringy(" \xff\t\0", 4)})
        EXPECT_EQ(FileName(taken).AsStringView(), taken);
}

TEST(FileNameTest, AJoinHoldsOneByteLessThanAName) {
    EXPECT_EQ("_brand" + (FileName("de") + ".xlat"), FileName("_brandde.xlat"));
    EXPECT_EQ((FileName(Stringy(249, 'n')) + ".xlat").size(), 254u);
    EXPECT_THROW(FileName(Stringy(250, 'n')) + ".xlat", IllegalFileName);
    EXPECT_THROW(FileName::CombineNames("n", 1, "", ~std::size_t(0)), IllegalFileName);
}

TEST(FileLocationTest, ParentChildAndRootFollowTheText) {
    struct {
        char const *path, *parent, *child;
        bool root;
    } const cases[] = {
        {"/", "/", "/c", true},
        {"//", "//", "//c", true},
        {"/a", "/", "/a/c", false},
        {"/a/b", "/a", "/a/b/c", false},
        {"/a//b//", "/a", "/a//b//c", false},
        {"/.", "/", "/./c", true},
        {"/a/./..", "/a/.", "/a/./../c", true},
        {"/../..", "/..", "/../../c", true},
        {"/a/../b", "/a/..", "/a/../b/c", false},
        {"..", "", "../c", false},
    };
    for (auto const& row : cases) {
        auto location = MakeFileLocation(row.path);
        EXPECT_EQ(location.Parent().AsStringView(), row.parent) << row.path;
        EXPECT_EQ(location.Child(FileName("c")).AsStringView(), row.child) << row.path;
        EXPECT_EQ(location.IsRoot(), row.root) << row.path;
    }
}

TEST(FileLocationTest, NeitherEmptyNorCutPathsReachTheSystem) {
    FileLocation empty, cut(std::string_view("/\0x", 3));
    EXPECT_THROW(empty.Exists(), EmptyFileLocationError);
    EXPECT_THROW(empty.Child(FileName("c")), EmptyFileLocationError);
    EXPECT_THROW(cut.Exists(), FileIOError);
    EXPECT_FALSE(empty.IsRoot() || empty.IsAbsolute());
}

TEST(FileErrorTest, TheMessageNamesClassLocationsAndPlatformText) {
    std::pair<Stringy, std::vector<int>> const classes[] = {
        {"19FilePermissionError", {EPERM, EACCES}},        {"17FileNotFoundError", {ENOENT}},
        {"11FileIOError", {EIO, EBADF, ENOSPC}},           {"13FileLockError", {EAGAIN}},
        {"17FileResourceError", {ENOMEM, ENFILE, EMFILE}}, {"22DirectoryNotFoundError", {ENOTDIR, ENAMETOOLONG}}};
    for (auto const& [name, codes] : classes)
        for (int code : codes)
            EXPECT_THAT(
                [=] { ThrowFileError(MakeFileLocation("/a"), code); },
                testing::ThrowsMessage<FileIOError>("File error \"" + name + "\" on \"/a\": " + strerror(code)));
    EXPECT_STREQ(EmptyFileLocationError().what(), "File error \"22EmptyFileLocationError\"");
    EXPECT_EQ(FileFoundError(0, "/a", "/b").MakeErrorMessage(), "File error \"14FileFoundError\" on \"/a\" and \"/b\"");
}

}  // namespace
