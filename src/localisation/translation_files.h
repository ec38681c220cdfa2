#pragma once

#include <memory>
#include <set>
#include <vector>

#include "foundation/files/file_location.h"
#include "localisation/format_overrides.h"

// The translation files that the process has loaded. Main thread only, filled at start and read from then on.

template <class T>
using SharingPtr = std::shared_ptr<T>;

// A length does not fit in the 32 bits meant for it.
class RequiredValueWouldOverflow : public DebuggableException {};

// A translation file: its bytes, never copied again, and the overrides that are views into them.
class FormatFile {
  public:
    // Reads the whole file. Throws a file error, or RequiredValueWouldOverflow for a file of 4 GiB or more.
    explicit FormatFile(FileLocation const& location);
    FormatFile(FormatFile const&) = delete;
    FormatFile& operator=(FormatFile const&) = delete;

    // The bytes as they are in the file: not known to be valid, a byte-order mark not removed.
    UStringRef<UTF8> FileContents() const { return {bytes_.data(), bytes_.data() + bytes_.size()}; }
    FormatOverrideSet const& Overrides() const { return overrides_; }

  private:
    std::vector<unsigned char> const bytes_;
    FormatOverrideSet const overrides_;
};

// The loaded files and their scopes in the global context. The two sets only keep them alive; their order means
// nothing. Never destroyed.
extern std::set<SharingPtr<FormatFile>>& m_formatFiles;
extern std::set<SharingPtr<FormatOverrideScope>>& m_formatOverrides;

// Loads a translation file; it counts before those loaded earlier. Throws as FormatFile does, and keeps nothing of the
// file then.
void AddTranslationFile(FileLocation const& location);

// Drops every loaded file: all texts are English again. Records that UFormat returned before and that are still to be
// rendered must be gone, they may be views into a file.
void DropTranslations();
