#include "localisation/translation_files.h"

#include <limits>

#include "foundation/base/never_destroyed.h"
#include "foundation/files/file_access.h"

std::set<SharingPtr<FormatFile>>& m_formatFiles = NeverDestroyed<std::set<SharingPtr<FormatFile>>>();
std::set<SharingPtr<FormatOverrideScope>>& m_formatOverrides =
    NeverDestroyed<std::set<SharingPtr<FormatOverrideScope>>>();

namespace {

std::vector<unsigned char> ReadWhole(FileLocation const& location) {
    FileReadingPath path(location);
    auto length = path.Length();
    if (length > std::numeric_limits<std::uint32_t>::max()) throw RequiredValueWouldOverflow();
    std::vector<unsigned char> bytes(length);
    FileReader(path).Read(bytes);
    return bytes;
}

}  // namespace

FormatFile::FormatFile(FileLocation const& location) : bytes_(ReadWhole(location)), overrides_(FileContents()) {}

void AddTranslationFile(FileLocation const& location) {
    auto file = std::make_shared<FormatFile>(location);
    auto scope = std::make_shared<FormatOverrideScope>(file->Overrides(), GlobalFormatOverrideContext());
    // The file first: a scope must not be kept without it.
    m_formatFiles.insert(file);
    m_formatOverrides.insert(scope);
}

void DropTranslations() {
    m_formatOverrides.clear();
    m_formatFiles.clear();
}
