#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <filesystem>
#include <vector>

#include "foundation/files/file_errors.h"
#include "foundation/files/file_info.h"
#include "foundation/files/file_reader.h"
#include "foundation/files/test_directory.h"

namespace {

namespace fs = std::filesystem;

class FileOperationsTest : public testing::Test {
  protected:
    FileLocation At(std::string_view path) const { return directory_.At(path); }
    static Stringy Read(FileLocation const& location) {
        FileReadingPath path(location);
        std::vector<unsigned char> bytes(path.Length());
        FileReader(path).Read(bytes);
        return {bytes.begin(), bytes.end()};
    }

    TestDirectory directory_;
    FileLocation const& top_ = directory_.Top();
};

TEST_F(FileOperationsTest, WhatWasWrittenIsReadBackAndReplacesWhatWasThere) {
    for (auto const& bytes : {Stringy(3 << 20, '\xe9'), Stringy("a\0b", 3), Stringy()}) {
        directory_.Write("/file", bytes);
        EXPECT_EQ(Read(At("/file")), bytes);
    }
    FileReadingPath shrunk(At("/file"));
    unsigned char byte;
    EXPECT_THROW(FileReader(shrunk).Read({&byte, 1}), FileIOError);
    EXPECT_THROW(Read(At("/missing")), FileNotFoundError);
    EXPECT_THROW(Read(top_), FileIOError);
    EXPECT_THROW(directory_.Write("/file/x", ""), DirectoryNotFoundError);
    FileWritingPath full(FileLocation("/dev/full"));
    EXPECT_THROW(FileWriter(full).Write("x"), FileIOError);
    EXPECT_THROW(FileWritingPath{FileLocation()}, EmptyFileLocationError);
}

TEST_F(FileOperationsTest, TheFileSystemIsAskedThroughLinks) {
    directory_.Write("/file", "");
    fs::create_symlink(top_.SystemPath(), At("/link").SystemPath());
    fs::create_symlink("nowhere", At("/dangling").SystemPath());
    EXPECT_TRUE(UnixFileInfo(At("/link")).IsDirectory());
    EXPECT_FALSE(UnixFileInfo(At("/file")).IsDirectory());
    EXPECT_GT(UnixFileInfo(At("/file")).ModificationTime().tv_sec, 0);
    EXPECT_TRUE(S_ISREG(UnixFileInfo(At("/file")).Mode()));
    for (auto name : {"/missing", "/dangling", "/file/below"}) EXPECT_FALSE(At(name).Exists()) << name;
    EXPECT_THROW(At("/" + Stringy(256, 'n')).Exists(), DirectoryNotFoundError);
}

TEST_F(FileOperationsTest, ATreeIsMadeWithWhatItLacks) {
    for (auto path : {"/a/b/c", "/a/b/c/d/", "/x/./y", "/z/../w", "/a/b/c"}) {
        CreateDirectoryTree(At(path));
        EXPECT_TRUE(UnixFileInfo(At(path)).IsDirectory()) << path;
    }
    CreateDirectoryTree(FileLocation("/"));
    EXPECT_THROW(CreateDirectoryTree(FileLocation("no/such/relative/path")), EmptyFileLocationError);
    EXPECT_FALSE(fs::exists("no"));
}

TEST_F(FileOperationsTest, ATreeDoesNotReplaceWhatIsNoDirectory) {
    directory_.Write("/file", "kept");
    fs::create_symlink("nowhere", At("/dangling").SystemPath());
    for (auto path : {"/file", "/file/x", "/file/x/y", "/dangling", "/dangling/x"})
        EXPECT_THROW(CreateDirectoryTree(At(path)), FileFoundError) << path;
    EXPECT_EQ(Read(At("/file")), "kept");
}

TEST_F(FileOperationsTest, DeletingEmptiesTheDirectoryAndNothingElse) {
    CreateDirectoryTree(At("/base/sub/empty"));
    CreateDirectoryTree(At("/outside/sub"));
    directory_.Write("/outside/file", "kept");
    directory_.Write("/base/file", "x");
    directory_.Write("/base/sub/file", "x");
    fs::create_symlink("../../outside", At("/base/sub/link").SystemPath());
    fs::create_symlink(At("/outside").SystemPath(), At("/base/link").SystemPath());
    mkfifo(At("/base/pipe").SystemPath(), 0600);
    ForceDeleteContents(At("/base"));
    EXPECT_TRUE(fs::is_empty(At("/base").SystemPath()));
    EXPECT_EQ(Read(At("/outside/file")), "kept");
    EXPECT_TRUE(At("/outside/sub").Exists());
}

TEST_F(FileOperationsTest, DeletingRefusesWhatIsNoDirectoryToEmpty) {
    directory_.Write("/file", "kept");
    EXPECT_NO_THROW(ForceDeleteContents(At("/missing")));
    for (auto missing : {"/missing", "/file/below"}) EXPECT_THROW(DeleteContents(At(missing)), FileNotFoundError);
    EXPECT_THROW(ForceDeleteContents(At("/file")), DirectoryNotFoundError);
    EXPECT_THROW(ForceDeleteContents(FileLocation()), EmptyFileLocationError);
    EXPECT_THROW(DeleteContents(FileLocation()), EmptyFileLocationError);
    EXPECT_EQ(Read(At("/file")), "kept");
}

// Makes the scratch directory the root of this process, as root or in a user namespace.
bool MoveRootTo(FileLocation const& top) {
    return chroot(top.SystemPath()) == 0 || (unshare(CLONE_NEWUSER) == 0 && chroot(top.SystemPath()) == 0);
}

enum { Refused, Deleted, NoOtherRoot };
int TryToEmpty(char const* path) try {
    DeleteContents(FileLocation(path));
    return Deleted;
} catch (FileIOError const& error) {
    return error.ErrorNumber() == EPERM ? Refused : Deleted;
}

TEST_F(FileOperationsTest, TheRootIsNeverEmptied) {
    directory_.Write("/file", "kept");
    fs::create_symlink("/", At("/link").SystemPath());
    for (auto root : {"/", "/link"}) {
        pid_t child = fork();
        if (child == 0) _exit(MoveRootTo(top_) ? TryToEmpty(root) : NoOtherRoot);
        int status;
        waitpid(child, &status, 0);
        if (WEXITSTATUS(status) == NoOtherRoot) GTEST_SKIP() << "this process may not move its root";
        EXPECT_EQ(WEXITSTATUS(status), Refused) << root;
    }
    EXPECT_EQ(Read(At("/file")), "kept");
}

TEST_F(FileOperationsTest, NestingOfAnyDepthIsDeletedWithAFewDescriptors) {
    UnixPlatform::FileDescriptor directory(open(top_.SystemPath(), O_RDONLY | O_DIRECTORY));
    for (int depth = 0; depth < 1000; ++depth) {
        ASSERT_EQ(mkdirat(directory.Get(), "directory", 0700), 0);
        directory = UnixPlatform::FileDescriptor(openat(directory.Get(), "directory", O_RDONLY | O_DIRECTORY));
        ASSERT_TRUE(directory.IsOpen());
    }
    directory.Close();
    rlimit before;
    getrlimit(RLIMIT_NOFILE, &before);
    rlimit const few{16, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &few);
    EXPECT_NO_THROW(DeleteContents(top_));
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_TRUE(fs::is_empty(top_.SystemPath()));
}

}  // namespace
