#include "foundation/files/file_location.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "foundation/files/file_errors.h"

namespace {

enum class Verdict { Legal, IllegalName, IllegalLength };

Verdict Judge(Stringy const& name) {
    FileName set("before");
    try {
        set.Set(name.data(), name.size());
        return set.AsStringView() == name ? Verdict::Legal : throw "stored something else";
    } catch (IllegalFileName const&) {
        EXPECT_EQ(set, FileName("before"));
        return Verdict::IllegalName;
    } catch (IllegalFileNameLength const&) {
        EXPECT_EQ(set, FileName("before"));
        return Verdict::IllegalLength;
    }
}

TEST(FileNameTest, SetTakesOneComponentOnly) {
    std::pair<Stringy, Verdict> const cases[] = {
        {"", Verdict::IllegalLength},
        {".", Verdict::IllegalName},
        {"..", Verdict::IllegalName},
        {"...", Verdict::Legal},
        {"a/b", Verdict::IllegalName},
        {"/", Verdict::IllegalName},
        {Stringy(255, 'n'), Verdict::Legal},
        {Stringy(256, 'n'), Verdict::IllegalLength},
        {Stringy(256, '/'), Verdict::IllegalLength},
        {" \xff\t", Verdict::Legal},
    };
    for (auto const& [name, verdict] : cases) EXPECT_EQ(Judge(name), verdict) << name;
    FileName unchecked;
    unchecked.SafeSet("../x", 4);
    EXPECT_EQ(unchecked.AsStringView(), "../x");
}

TEST(FileNameTest, AJoinHoldsOneByteLessThanAName) {
    EXPECT_EQ("_brand" + (FileName("de") + ".xlat"), FileName("_brandde.xlat"));
    EXPECT_EQ(FileName("a") + FileName("b"), FileName("ab"));
    EXPECT_EQ((FileName(Stringy(249, 'n')) + ".xlat").size(), 254u);
    EXPECT_THROW(FileName(Stringy(250, 'n')) + ".xlat", IllegalFileName);
    EXPECT_THROW(FileName::CombineNames("", 0, "", ~std::size_t(0)), IllegalFileName);
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
        {"a/b", "a", "a/b/c", false},
        {"a", "", "a/c", false},
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
        EXPECT_EQ(location.IsAbsolute(), row.path[0] == '/') << row.path;
    }
    EXPECT_EQ(MakeFileLocation("/a/b").Sibling(FileName("c")), MakeFileLocation("/a/c"));
}

TEST(FileLocationTest, NeitherEmptyNorCutPathsReachTheSystem) {
    FileLocation empty, cut(std::string_view("/\0x", 3));
    EXPECT_THROW(empty.RequireNonEmpty(), EmptyFileLocationError);
    EXPECT_THROW(empty.Exists(), EmptyFileLocationError);
    EXPECT_THROW(empty.Child(FileName("c")), EmptyFileLocationError);
    EXPECT_THROW(cut.Exists(), FileIOError);
    EXPECT_FALSE(empty.IsRoot() || empty.IsAbsolute());
}

Stringy MessageFor(int errorNumber) {
    try {
        ThrowFileError(MakeFileLocation("/a/b"), errorNumber);
    } catch (DebuggableException const& error) {
        return error.what();
    }
}

TEST(FileErrorTest, TheMessageNamesClassLocationsAndPlatformText) {
    std::pair<int, char const*> const classes[] = {
        {EPERM, "19FilePermissionError"},
        {EACCES, "19FilePermissionError"},
        {ENOENT, "17FileNotFoundError"},
        {EIO, "11FileIOError"},
        {EBADF, "11FileIOError"},
        {EAGAIN, "13FileLockError"},
        {ENOMEM, "17FileResourceError"},
        {ENFILE, "17FileResourceError"},
        {EMFILE, "17FileResourceError"},
        {ENOTDIR, "22DirectoryNotFoundError"},
        {ENAMETOOLONG, "22DirectoryNotFoundError"},
        {ENOSPC, "11FileIOError"},
    };
    for (auto [number, name] : classes)
        EXPECT_EQ(MessageFor(number), Stringy("File error \"") + name + "\" on \"/a/b\": " + strerror(number));
    EXPECT_STREQ(EmptyFileLocationError().what(), "File error \"22EmptyFileLocationError\"");
    EXPECT_EQ(FileFoundError(0, "/a", "/b").MakeErrorMessage(), "File error \"14FileFoundError\" on \"/a\" and \"/b\"");
}

}  // namespace
