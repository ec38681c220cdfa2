#pragma once

#include "foundation/files/file_location.h"

// Emptying and making directories. All throw a file error, EmptyFileLocationError for the empty location before they
// ask the system for anything.

// Makes the directory and every missing one that leads to it, with the modes that the process's umask leaves of 0777.
// A directory that another process makes meanwhile is as good. Throws FileFoundError, naming the culprit, when
// something that is no directory stands in the way.
void CreateDirectoryTree(FileLocation const& location);

// Deletes everything in the directory, which itself stays. Throws FileNotFoundError when it does not exist.
//
// The first failure ends it; what was deleted until then stays deleted. A symbolic link in the directory is removed,
// never followed, and directories are entered only as entries of the one before, so that nothing outside is touched
// even while somebody else moves things about. The root directory is refused (FilePermissionError) by whatever path.
// Nesting of any depth takes neither stack nor descriptors; time and memory are linear in the number of entries.
void DeleteContents(FileLocation const& location);

// The same, but nothing there is nothing to do.
void ForceDeleteContents(FileLocation const& location);
