#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "foundation/files/directories.h"
#include "foundation/files/file_access.h"
#include "foundation/files/file_errors.h"

namespace {

namespace fs = std::filesystem;

// The paths lie in a directory of the test's own, "/" among them.
struct FileOperationsTest : testing::Test {
    ~FileOperationsTest() override { fs::remove_all(top_); }

    FileLocation At(std::string_view path) const { return FileLocation(Stringy(top_).append(path)); }
    Stringy Read(std::string_view path) const {
        FileReadingPath file(At(path));
        Stringy bytes(file.Length(), '?');
        FileReader(file).Read({reinterpret_cast<unsigned char*>(bytes.data()), bytes.size()});
        return bytes;
    }
    void Write(std::string_view path, ConstData bytes) const {
        FileWritingPath file(At(path));
        FileWriter(file).Write(bytes);
        file.Close();
    }
    void Link(char const* path, fs::path const& target) const { fs::create_symlink(target, top_ + path); }

    char pattern_[24] = "/tmp/files_test.XXXXXX";
    std::string top_ = mkdtemp(pattern_);
};

TEST_F(FileOperationsTest, WhatIsWrittenReplacesWhatWasThereButFollowsNoLink) {
    for (auto const& bytes : {Stringy(3 << 20, '\xe9'), Stringy("a\0b", 3), Stringy()}) {
        Write("/file", bytes);
        EXPECT_EQ(Read("/file"), bytes);
    }
    FileReadingPath shrunk(At("/file"));
    unsigned char byte;
    EXPECT_THROW(FileReader(shrunk).Read({&byte, 1}), FileIOError);
    EXPECT_THROW(Read("/missing"), FileNotFoundError);
    EXPECT_THROW(Read("/"), FileIOError);
    EXPECT_THROW(Write("/file/x", ""), DirectoryNotFoundError);
    FileWritingPath full(FileLocation("/dev/full"));
    EXPECT_THROW(FileWriter(full).Write("x"), FileIOError);
    int const next = dup(0);
    close(next);
    FileWritingPath lost(At("/lost"));
    close(next);
    EXPECT_THROW(lost.Close(), FileIOError);
    Link("/link", "file");
    EXPECT_THROW(Write("/link", "elsewhere"), FileIOError);
    EXPECT_EQ(Read("/file"), "");
}

TEST_F(FileOperationsTest, ATreeIsMadeWithWhatItLacksAndReplacesNothing) {
    Write("/file", "kept");
    Link("/dangling", "nowhere");
    Link("/link", top_);
    for (auto path : {"/a/b/c", "/a/b/c/d/", "/x/./y", "/z/../w", "/a/b/c", "/link", "/link/v"}) {
        CreateDirectoryTree(At(path));
        EXPECT_TRUE(UnixFileInfo(At(path)).IsDirectory()) << path;
    }
    for (auto path : {"/file", "/file/x/y", "/dangling", "/dangling/x"})
        EXPECT_THROW(CreateDirectoryTree(At(path)), FileFoundError) << path;
    EXPECT_EQ(Read("/file"), "kept");
    CreateDirectoryTree(FileLocation("/"));
    EXPECT_THROW(CreateDirectoryTree(FileLocation("no/such/relative/path")), EmptyFileLocationError);
}

TEST_F(FileOperationsTest, DeletingEmptiesADirectoryAndNothingElse) {
    CreateDirectoryTree(At("/base/sub/empty"));
    fs::permissions(At("/base/sub/empty").SystemPath(), fs::perms::none);
    // Deeper than the process may have descriptors.
    rlimit const descriptors{64, 64};
    setrlimit(RLIMIT_NOFILE, &descriptors);
    Stringy deep = "/base";
    for (int level = 0; level < 1000; ++level) deep += "/d";
    CreateDirectoryTree(At(deep));
    CreateDirectoryTree(At("/outside"));
    Write("/outside/file", "kept");
    Write("/base/sub/file", "x");
    Link("/base/sub/link", "../../outside");
    mkfifo(At("/base/pipe").SystemPath(), 0600);
    ForceDeleteContents(At("/base"));
    EXPECT_TRUE(fs::is_empty(top_ + "/base"));
    EXPECT_NO_THROW(ForceDeleteContents(At("/missing")));
    EXPECT_THROW(DeleteContents(At("/missing")), FileNotFoundError);
    EXPECT_THROW(ForceDeleteContents(At("/outside/file")), DirectoryNotFoundError);
    EXPECT_EQ(Read("/outside/file"), "kept");
}

TEST_F(FileOperationsTest, TwoWhoEmptyOneDirectoryAtOnceBothSucceed) {
    for (int i = 0; i < 300; ++i) {
        auto const path = "/base/" + std::to_string(i);
        CreateDirectoryTree(At(path + "/empty"));
        Write(path + "/file", "x");
        Write(path + ".file", "x");
    }
    auto empty = [&] { EXPECT_NO_THROW(DeleteContents(At("/base"))); };
    { std::jthread one(empty), other(empty); }
    EXPECT_TRUE(fs::is_empty(top_ + "/base"));
}

// Of its names some stand in both, so that some come after the directory, in whichever order they are listed.
TEST_F(FileOperationsTest, ADirectoryThatIsMovedToAndFroLeadsNowhereElse) {
    auto const fill = [&](Stringy const& directory) {
        CreateDirectoryTree(At(directory));
        for (char name = 'a'; name < 'u'; ++name) Write(directory + "/" + name, "kept");
    };
    fill("/outside");
    for (int round = 0; round < 30; ++round) {
        fill("/base/moved");
        fill("/base");
        std::jthread const mover([&](std::stop_token over) {
            for (bool there = false; !over.stop_requested() || there; there = !there)
                rename(At(there ? "/outside/moved" : "/base/moved").SystemPath(),
                       At(there ? "/base/moved" : "/outside/moved").SystemPath());
        });
        try {
            DeleteContents(At("/base"));
        } catch (FileIOError const&) {
        }
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(top_ + "/outside"), {}), 20);
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
    Link("/link", "/");
    for (auto root : {"/", "/link"}) {
        pid_t const child = fork();
        if (child == 0) _exit(TryToEmpty(root, top_.c_str()));
        int status;
        waitpid(child, &status, 0);
        if (WEXITSTATUS(status) == NoOtherRoot) GTEST_SKIP() << "this process may not move its root";
        EXPECT_EQ(WEXITSTATUS(status), Refused) << root;
    }
    EXPECT_EQ(Read("/file"), "kept");
}

}  // namespace
