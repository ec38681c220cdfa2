#include "foundation/files/directories.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <memory>
#include <vector>

#include "foundation/base/resumed.h"
#include "foundation/files/file_access.h"
#include "foundation/files/file_errors.h"

namespace {

using UnixPlatform::FileDescriptor;

// Whether the directory is there already.
bool IsDirectory(FileLocation const& location) {
    UnixFileInfo const info(location);
    if (info.Exists() && !info.IsDirectory()) throw FileFoundError(EEXIST, location.AsStringView());
    return info.IsDirectory();
}

void CreateDirectory(FileLocation const& location) {
    if (mkdir(location.SystemPath(), 0777) == 0) return;
    if (errno != EEXIST) ThrowFileError(location, errno);
    // Somebody was faster, or a dangling link has the name.
    if (!IsDirectory(location)) throw FileFoundError(EEXIST, location.AsStringView());
}

bool SameFile(struct stat const& left, struct stat const& right) {
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

struct CloseListing {
    void operator()(DIR* listing) const { closedir(listing); }
};

// Empties a directory, depth first, with one directory open at a time.
class ContentsDeleter {
  public:
    explicit ContentsDeleter(FileLocation const& location) : location_(location) {
        Enter(UnixPlatform::OpenLocation(location, O_RDONLY | O_DIRECTORY));
        struct stat root;
        Check(stat("/", &root));
        if (SameFile(root, levels_.back().status)) ThrowFileError(location_, EPERM);
    }

    void Run() {
        while (true) {
            if (!levels_.back().names.empty())
                DeleteOrEnterLast();
            else if (levels_.size() > 1)
                LeaveAndDelete();
            else
                return;
        }
    }

  private:
    // A directory on the way from the top down to the open one: which it is and the entries left in it. The next
    // level's directory is the last of them.
    struct Level {
        struct stat status;
        std::vector<Stringy> names;
    };

    void Check(int result) const {
        if (result == -1) ThrowFileError(location_, errno);
    }

    // Whether a call about an entry did its work, rather than find the entry gone: others may delete here as well.
    bool FoundEntry(int result) const {
        if (result == -1 && errno == ENOENT) return false;
        Check(result);
        return true;
    }

    FileDescriptor TryOpenIn(FileDescriptor const& directory, char const* name) const {
        int const flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
        return FileDescriptor(Resumed([&] { return openat(directory.Get(), name, flags); }));
    }

    FileDescriptor OpenIn(FileDescriptor const& directory, char const* name) const {
        auto opened = TryOpenIn(directory, name);
        Check(opened.Get());
        return opened;
    }

    struct stat StatusOf(FileDescriptor const& directory) const {
        struct stat status;
        Check(fstat(directory.Get(), &status));
        return status;
    }

    // All names first, then the deleting: not every file system lists reliably what changes meanwhile.
    std::vector<Stringy> NamesIn(FileDescriptor const& directory) const {
        auto listed = OpenIn(directory, ".");
        std::unique_ptr<DIR, CloseListing> listing(fdopendir(listed.Get()));
        if (!listing) ThrowFileError(location_, errno);
        listed.Release();
        std::vector<Stringy> names;
        while (true) {
            errno = 0;
            auto const* entry = readdir(listing.get());
            if (!entry) break;
            std::string_view const name(entry->d_name);
            if (name != "." && name != "..") names.emplace_back(name);
        }
        if (errno != 0) ThrowFileError(location_, errno);
        return names;
    }

    void Enter(FileDescriptor directory) {
        levels_.push_back({StatusOf(directory), NamesIn(directory)});
        open_ = std::move(directory);
    }

    void DeleteOrEnterLast() {
        char const* name = levels_.back().names.back().c_str();
        struct stat status;
        bool const found = FoundEntry(fstatat(open_.Get(), name, &status, AT_SYMLINK_NOFOLLOW));
        if (found && S_ISDIR(status.st_mode)) return DeleteOrEnterDirectory(name);
        if (found) FoundEntry(unlinkat(open_.Get(), name, 0));
        levels_.back().names.pop_back();
    }

    void DeleteOrEnterDirectory(char const* name) {
        // An empty directory goes even if it may not be read.
        if (unlinkat(open_.Get(), name, AT_REMOVEDIR) == -1) {
            auto directory = TryOpenIn(open_, name);
            if (FoundEntry(directory.Get())) return Enter(std::move(directory));
        }
        levels_.back().names.pop_back();
    }

    void LeaveAndDelete() {
        auto parent = OpenIn(open_, "..");
        levels_.pop_back();
        // A directory that was moved away meanwhile leads up to somewhere else.
        if (!SameFile(StatusOf(parent), levels_.back().status)) ThrowFileError(location_, ESTALE);
        open_ = std::move(parent);
        FoundEntry(unlinkat(open_.Get(), levels_.back().names.back().c_str(), AT_REMOVEDIR));
        levels_.back().names.pop_back();
    }

    FileLocation const& location_;
    std::vector<Level> levels_;
    FileDescriptor open_;
};

}  // namespace

void CreateDirectoryTree(FileLocation const& location) {
    std::vector<FileLocation> missing;
    for (auto next = location; !IsDirectory(next); next = next.Parent()) missing.push_back(next);
    for (; !missing.empty(); missing.pop_back()) CreateDirectory(missing.back());
}

void DeleteContents(FileLocation const& location) {
    if (!location.Exists()) ThrowFileError(location, ENOENT);
    ContentsDeleter(location).Run();
}

void ForceDeleteContents(FileLocation const& location) {
    if (location.Exists()) DeleteContents(location);
}
