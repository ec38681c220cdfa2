#pragma once

#include <vector>

#include "foundation/base/const_data.h"
#include "foundation/base/null_or.h"
#include "foundation/files/file_location.h"
#include "foundation/time/instant.h"
#include "foundation/time/time_object.h"

class XMLElement;

// One support file as it travels inside a message: its name, the sub-folder it belongs to, and its bytes in base64
// (RFC 4648), possibly broken into lines. A value.
class FileTransfer {
  public:
    FileTransfer() = default;
    FileTransfer(FileName const& name, FileName const& sub_folder, Stringy base64_content);
    // Takes the content from the file. Throws what reading it throws (file_errors.h).
    FileTransfer(FileLocation const& file, FileName const& name, FileName const& sub_folder);

    FileName const& Name() const { return name_; }
    FileName const& SubFolder() const { return sub_folder_; }
    Stringy const& Content() const { return content_; }
    // Whether the file belongs directly into the base directory; only such files are looked up by name.
    bool IsTopLevel() const;

    // Creates or overwrites the file with the decoded content. Bytes outside the base64 alphabet, line breaks and
    // padding among them, are skipped: no content is ever refused. Throws what writing throws (file_errors.h).
    void WriteToFile(FileLocation const& file) const;
    // Replaces the content by that of the file. Throws what reading it throws.
    void ReadFromFile(FileLocation const& file);

    friend void XMLLoad(XMLElement const& element, FileTransfer& file);

  private:
    FileName name_;
    FileName sub_folder_;
    Stringy content_;
};

// Reads "FileName", "SubFolder" and "Content". The names are stored as they stand, unchecked.
void XMLLoad(XMLElement const& element, FileTransfer& file);

// The settings that the client hands over at the start. Everything is zero, false or null until read.
//
// This program goes by remind_interval, remind_time, allow_snooze and use_locale. Nothing reads the others: they belong
// to the client's message and are kept complete.
struct InitialUISettings {
    TimeInterval remind_interval{0};
    NullOr<TimeObject> remind_time;
    unsigned history_mode = 0;
    unsigned tech_history_mode = 0;
    NullOr<TimeInterval> max_history_age;
    NullOr<TimeInterval> max_tech_history_age;
    unsigned balloon_mode = 0;
    unsigned tray_mode = 0;
    bool has_main_dialog = false;
    bool allow_snooze = false;
    bool always_topmost = false;
    bool display_single_action_summary = false;
    bool use_locale = false;
    TimeInterval idle_threshold{0};
    bool use_activity_tracking = false;
    bool action_running_tray = false;
    NullOr<Stringy> initial_tab_id;
};

// Reads the fields that the element has, in the order above; the others keep what they hold.
void XMLSerialize(XMLElement const& element, InitialUISettings& settings);

// The client's first message: where the process keeps its files, the support files themselves, and the settings.
//
// The accessors look for a top-level support file by its name, ignoring ASCII case; of several equal names the first
// counts. What they return lives as long as this record does unchanged.
class InitializationInfo {
  public:
    std::vector<FileTransfer> const& SupportFiles() const { return support_files_; }
    // Empty when the message had none.
    FileLocation const& BaseDirectory() const { return base_directory_; }
    InitialUISettings const& Settings() const { return settings_; }
    NullOr<Stringy> const& InitialTabID() const { return settings_.initial_tab_id; }

    NullOrConstRef<FileTransfer> TechnicianPage() const { return TopLevelFile("_currentTechnician.html"); }
    NullOrConstRef<FileTransfer> Dashboard() const { return TopLevelFile("_currentDashboard.html"); }
    NullOrConstRef<FileTransfer> NoSelectionPage() const { return TopLevelFile("_noselection.html"); }
    NullOrConstRef<FileTransfer> BrandTranslation() const { return TopLevelFile("_brand.xlat"); }
    NullOrConstRef<FileTransfer> BrandIcon() const { return TopLevelFile("_clientui.ico"); }

    // The translation file named `prefix` + `first` + ".xlat", or else `prefix` + `second` + ".xlat"; an empty `first` or
    // `second` is passed over. Throws IllegalFileName when a joined name has 255 bytes or more.
    NullOrConstRef<FileTransfer> GetLocalization(FileName const& prefix, FileName const& first,
                                                 FileName const& second) const;
    // The general translation for a locale ("de_DE") and its language ("de").
    NullOrConstRef<FileTransfer> GeneralLocalization(FileName const& first, FileName const& second) const;
    // The brand's own translation for the same.
    NullOrConstRef<FileTransfer> LocalizedBrandTranslation(FileName const& first, FileName const& second) const;

    friend void XMLSerialize(XMLElement const& element, InitializationInfo& info);

  private:
    NullOrConstRef<FileTransfer> TopLevelFile(ConstData name) const;
    NullOrConstRef<FileTransfer> Translation(FileName const& prefix, FileName const& locale) const;

    std::vector<FileTransfer> support_files_;
    FileLocation base_directory_;
    InitialUISettings settings_;
};

// Reads "BaseDirectory", every "SupportFiles" element, in document order, and "InitialUISettings".
void XMLSerialize(XMLElement const& element, InitializationInfo& info);
