// Any element is an initialization or is refused; of the files that came with it can be told which one fits.
#include "messages/initialization_info.h"
#include "tests/fuzz/fuzz.h"
#include "xml/simple_xml.h"

void Fuzz(std::string_view input) {
    InitializationInfo info;
    Succeeds([&] { XMLSerialize(*SimpleXML::Parse(Text(input)), info); });
    info.BaseDirectory().IsRoot();
    for (FileTransfer const& file : info.SupportFiles())
        Succeeds([&] { info.GeneralLocalization(file.SubFolder(), file.Name()); });
}
