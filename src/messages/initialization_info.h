#pragma once

#include <vector>

#include "foundation/base/null_or.h"
#include "foundation/files/file_location.h"
#include "messages/file_transfer.h"
#include "messages/initial_ui_settings.h"

class XMLElement;

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
