#include "messages/apply_initialization_info.h"

#include <cerrno>
#include <clocale>
#include <string>
#include <string_view>

#include "core/process/process_state.h"
#include "foundation/files/directories.h"
#include "foundation/files/file_errors.h"
#include "localisation/translation_files.h"

namespace {

struct LocaleNames {
    FileName full;      // Such as "de_DE".
    FileName language;  // Such as "de"; empty for a locale without a territory.
};

FileName NameOf(std::string_view text) {
    FileName name;
    if (!text.empty()) name.Set(text.data(), static_cast<unsigned>(text.size()));
    return name;
}

void CheckFileNames(InitializationInfo const& info) {
    for (auto const& file : info.SupportFiles()) {
        auto name = file.Name().AsStringView();
        if (name.empty() || name == "." || name == ".." || name.find_first_of(std::string_view("/\0", 2)) != name.npos)
            throw IllegalFileName();
    }
}

void CheckBaseDirectory(FileLocation const& directory) {
    directory.RequireNonEmpty();
    if (!directory.IsAbsolute() || directory.IsRoot()) throw FileIOError(EINVAL, directory.AsStringView());
}

void PrepareBaseDirectory(FileLocation const& directory) {
    if (directory.Exists())
        ForceDeleteContents(directory);
    else
        CreateDirectoryTree(directory);
}

void WriteSupportFiles(InitializationInfo const& info) {
    for (auto const& file : info.SupportFiles()) file.WriteToFile(m_baseDirectory.Child(file.Name()));
}

// Sets the locale for characters and `international`. Only the first '.' is cut at: a modifier before it stays, one
// behind it goes with the encoding.
LocaleNames ChooseLocale(InitialUISettings const& settings) {
    if (!settings.use_locale) return {};
    char const* set = std::setlocale(LC_CTYPE, "");
    std::string_view name = set ? set : "";
    if (name.empty() || name == "C" || name == "POSIX") return {};
    international = true;
    auto full = name.substr(0, name.find('.'));
    auto underscore = full.find('_');
    return {NameOf(full), NameOf(underscore == full.npos ? std::string_view() : full.substr(0, underscore))};
}

void Load(NullOrConstRef<FileTransfer> const& translation) {
    if (translation) AddTranslationFile(m_baseDirectory.Child(translation->Name()));
}

void LoadTranslations(InitializationInfo const& info, LocaleNames const& locale) {
    auto brand = info.LocalizedBrandTranslation(locale.full, locale.language);
    if (!brand) brand = info.BrandTranslation();
    auto general = info.GeneralLocalization(locale.full, locale.language);
    Load(brand);
    Load(general);
}

void TakeOverSettings(InitialUISettings const& settings) {
    if (settings.remind_time) m_postponedTo = Instant(*settings.remind_time);
    m_remindInterval = settings.remind_interval;
    m_snoozable = settings.allow_snooze;
}

}  // namespace

void ApplyInitializationInfo(InitializationInfo const& info) {
    CheckFileNames(info);
    CheckBaseDirectory(info.BaseDirectory());
    m_baseDirectory = info.BaseDirectory();
    PrepareBaseDirectory(m_baseDirectory);
    WriteSupportFiles(info);
    LoadTranslations(info, ChooseLocale(info.Settings()));
    TakeOverSettings(info.Settings());
    initialized = true;
}
