#include "messages/initialization_info.h"

#include <utility>
#include <vector>

#include "foundation/files/file_access.h"
#include "foundation/text/ascii.h"
#include "foundation/text/base64.h"
#include "xml/serialize.h"

FileTransfer::FileTransfer(FileName const& name, FileName const& sub_folder, Stringy base64_content)
    : name_(name), sub_folder_(sub_folder), content_(std::move(base64_content)) {}

FileTransfer::FileTransfer(FileLocation const& file, FileName const& name, FileName const& sub_folder)
    : FileTransfer(name, sub_folder, {}) {
    ReadFromFile(file);
}

bool FileTransfer::IsTopLevel() const {
    return sub_folder_.IsEmpty();
}

void FileTransfer::WriteToFile(FileLocation const& file) const {
    FileWritingPath path(file);
    FileWriter(path).Write(DecodeBase64(content_));
    path.Close();
}

void FileTransfer::ReadFromFile(FileLocation const& file) {
    FileReadingPath path(file);
    std::vector<unsigned char> bytes(path.Length());
    FileReader(path).Read(bytes);
    content_ = EncodeBase64({bytes.data(), bytes.data() + bytes.size()});
}

void XMLLoad(XMLElement const& element, FileTransfer& file) {
    XMLLoad(element, "FileName", file.name_);
    XMLLoad(element, "SubFolder", file.sub_folder_);
    XMLLoad(element, "Content", file.content_);
}

void XMLSerialize(XMLElement const& element, InitialUISettings& settings) {
    XMLSerialize(element, "RemindInterval", settings.remind_interval);
    XMLSerialize(element, "RemindTime", settings.remind_time);
    XMLSerialize(element, "HistoryMode", settings.history_mode);
    XMLSerialize(element, "TechHistoryMode", settings.tech_history_mode);
    XMLSerialize(element, "MaxHistoryAge", settings.max_history_age);
    XMLSerialize(element, "MaxTechHistoryAge", settings.max_tech_history_age);
    XMLSerialize(element, "BalloonMode", settings.balloon_mode);
    XMLSerialize(element, "TrayMode", settings.tray_mode);
    XMLSerialize(element, "HasMainDialog", settings.has_main_dialog);
    XMLSerialize(element, "AllowSnooze", settings.allow_snooze);
    XMLSerialize(element, "AlwaysTopmost", settings.always_topmost);
    XMLSerialize(element, "DisplaySingleActionSummary", settings.display_single_action_summary);
    XMLSerialize(element, "UseLocale", settings.use_locale);
    XMLSerialize(element, "IdleThreshold", settings.idle_threshold);
    XMLSerialize(element, "UseActivityTracking", settings.use_activity_tracking);
    XMLSerialize(element, "ActionRunningTray", settings.action_running_tray);
    XMLSerialize(element, "InitialTabID", settings.initial_tab_id);
}

NullOrConstRef<FileTransfer> InitializationInfo::TopLevelFile(ConstData name) const {
    for (auto const& file : support_files_)
        if (file.IsTopLevel() && Ascii::EqualIgnoringCase(file.Name().AsStringView(), name)) return file;
    return {};
}

NullOrConstRef<FileTransfer> InitializationInfo::Translation(FileName const& prefix, FileName const& locale) const {
    if (locale.IsEmpty()) return {};
    return TopLevelFile((prefix + locale + ".xlat").AsStringView());
}

NullOrConstRef<FileTransfer> InitializationInfo::GetLocalization(FileName const& prefix, FileName const& first,
                                                                 FileName const& second) const {
    auto found = Translation(prefix, first);
    return found ? found : Translation(prefix, second);
}

NullOrConstRef<FileTransfer> InitializationInfo::GeneralLocalization(FileName const& first,
                                                                     FileName const& second) const {
    return GetLocalization(FileName(), first, second);
}

NullOrConstRef<FileTransfer> InitializationInfo::LocalizedBrandTranslation(FileName const& first,
                                                                           FileName const& second) const {
    return GetLocalization(FileName("_brand"), first, second);
}

void XMLSerialize(XMLElement const& element, InitializationInfo& info) {
    XMLSerialize(element, "BaseDirectory", info.base_directory_);
    XMLLoadList(element, "SupportFiles", info.support_files_);
    if (auto settings = element.FindChildElement("InitialUISettings")) XMLSerialize(*settings, info.settings_);
}
