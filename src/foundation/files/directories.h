#pragma once

#include "foundation/files/file_location.h"

// Making and emptying directories. What fails throws a file error (file_errors.h), for the empty location always
// EmptyFileLocationError.

// Makes the directory and every missing one that leads to it, with the modes that the process's umask leaves of 0777.
// A directory that another process makes meanwhile is as good. Throws FileFoundError, naming the culprit, when
// something that is no directory stands in the way, and EmptyFileLocationError for a relative location of which not even
// the first directory is there.
void CreateDirectoryTree(FileLocation const& location);

// Deletes everything in the directory, which itself stays. Throws FileNotFoundError when it does not exist.
//
// What another process deletes meanwhile is as good. Any other failure ends it; what was deleted until then stays
// deleted. A symbolic link is removed, never followed, and a directory is entered only as an entry of the one that holds
// it: no link that somebody puts in the way leads the deleting elsewhere, and a directory that somebody moves away ends
// it. The root directory is refused (FilePermissionError) by whatever path. Nesting of any depth takes neither stack nor
// descriptors; time and memory are linear in the number of entries.
void DeleteContents(FileLocation const& location);

// The same, but nothing there is nothing to do.
void ForceDeleteContents(FileLocation const& location);
