#include "messages/initialization_info.h"

#include "foundation/text/ascii.h"
#include "xml/serialize.h"

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
    FileName prefix;
    prefix.Set("_brand", 6);
    return GetLocalization(prefix, first, second);
}

void XMLSerialize(XMLElement const& element, InitializationInfo& info) {
    XMLSerialize(element, "BaseDirectory", info.base_directory_);
    XMLLoadList(element, "SupportFiles", info.support_files_);
    if (auto settings = element.FindChildElement("InitialUISettings")) XMLSerialize(*settings, info.settings_);
}
