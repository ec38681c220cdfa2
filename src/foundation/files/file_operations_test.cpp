#include <gtest/gtest.h>
#include <sched.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <filesystem>
#include <vector>

#include "foundation/files/file_access.h"
#include "foundation/files/file_errors.h"
#include "foundation/files/file_location.h"
#include "tests/support/test_directory.h"

namespace {

namespace fs = std::filesystem;

struct FileOperationsTest : testing::Test, TestDirectory {
    static Stringy Read(FileLocation const& location) {
        FileReadingPath path(location);
        std::vector<unsigned char> bytes(path.Length());
        FileReader(path).Read(bytes);
        return {bytes.begin(), bytes.end()};
    }
};

TEST_F(FileOperationsTest, WhatWasWrittenIsReadBackAndReplacesWhatWasThere) {
    for (auto const& bytes : {Stringy(3 << 20, '\xe9'), Stringy("a\0b", 3), Stringy()}) {
        Write("/file", bytes);
        EXPECT_EQ(Read(At("/file")), bytes);
    }
    FileReadingPath shrunk(At("/file"));
    unsigned char byte;
    EXPECT_THROW(FileReader(shrunk).Read({&byte, 1}), FileIOError);
    EXPECT_THROW(Read(At("/missing")), FileNotFoundError);
    EXPECT_THROW(Read(Top()), FileIOError);
    EXPECT_THROW(Write("/file/x", ""), DirectoryNotFoundError);
    FileWritingPath full(FileLocation("/dev/full"));
    EXPECT_THROW(FileWriter(full).Write("x"), FileIOError);
}

TEST_F(FileOperationsTest, ATreeIsMadeWithWhatItLacksAndReplacesNothing) {
    Write("/file", "kept");
    fs::create_symlink("nowhere", At("/dangling").SystemPath());
    fs::create_symlink(Top().SystemPath(), At("/link").SystemPath());
    for (auto path : {"/a/b/c", "/a/b/c/d/", "/x/./y", "/z/../w", "/a/b/c", "/link", "/link/v"}) {
        CreateDirectoryTree(At(path));
        EXPECT_TRUE(UnixFileInfo(At(path)).IsDirectory()) << path;
    }
    for (auto path : {"/file", "/file/x", "/file/x/y", "/dangling", "/dangling/x"})
        EXPECT_THROW(CreateDirectoryTree(At(path)), FileFoundError) << path;
    for (auto path : {"/missing", "/file/below", "/dangling"}) EXPECT_FALSE(At(path).Exists()) << path;
    EXPECT_EQ(Read(At("/file")), "kept");
    CreateDirectoryTree(FileLocation("/"));
    EXPECT_THROW(CreateDirectoryTree(FileLocation("no/such/relative/path")), EmptyFileLocationError);
}

TEST_F(FileOperationsTest, DeletingEmptiesTheDirectoryAndNothingElse) {
    CreateDirectoryTree(At("/base/sub/empty"));
    fs::permissions(At("/base/sub/empty").SystemPath(), fs::perms::none);
    CreateDirectoryTree(At("/outside"));
    Write("/outside/file", "kept");
    Write("/base/sub/file", "x");
    fs::create_symlink("../../outside", At("/base/sub/link").SystemPath());
    mkfifo(At("/base/pipe").SystemPath(), 0600);
    ForceDeleteContents(At("/base"));
    EXPECT_TRUE(fs::is_empty(At("/base").SystemPath()));
    EXPECT_EQ(Read(At("/outside/file")), "kept");
}

TEST_F(FileOperationsTest, DeletingRefusesWhatIsNoDirectoryToEmpty) {
    Write("/file", "kept");
    EXPECT_NO_THROW(ForceDeleteContents(At("/missing")));
    for (auto missing : {"/missing", "/file/below"}) EXPECT_THROW(DeleteContents(At(missing)), FileNotFoundError);
    EXPECT_THROW(ForceDeleteContents(At("/file")), DirectoryNotFoundError);
    EXPECT_EQ(Read(At("/file")), "kept");
}

enum { Deleted, Refused, NoOtherRoot };  // A process that dies ends with the first, too.

// Empties a directory in a process whose root is the scratch directory, moved there as root or in a user namespace.
int TryToEmpty(char const* path, char const* top) try {
    if (chroot(top) != 0 && (unshare(CLONE_NEWUSER) != 0 || chroot(top) != 0)) return NoOtherRoot;
    DeleteContents(FileLocation(path));
    return Deleted;
} catch (FilePermissionError const&) {
    return Refused;
}

TEST_F(FileOperationsTest, TheRootIsNeverEmptied) {
    Write("/file", "kept");
    fs::create_symlink("/", At("/link").SystemPath());
    for (auto root : {"/", "/link"}) {
        pid_t child = fork();
        if (child == 0) _exit(TryToEmpty(root, Top().SystemPath()));
        int status;
        waitpid(child, &status, 0);
        if (WEXITSTATUS(status) == NoOtherRoot) GTEST_SKIP() << "this process may not move its root";
        EXPECT_EQ(WEXITSTATUS(status), Refused) << root;
    }
    EXPECT_EQ(Read(At("/file")), "kept");
}

}  // namespace
