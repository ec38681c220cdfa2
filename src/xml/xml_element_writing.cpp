#include <utility>

#include "xml/xml_element.h"
#include "xml/xml_writer.h"

namespace {

void WriteBeginning(XMLWriter& writer, XMLElement const& element) {
    writer.BeginElement(element.Name());
    for (auto [name, value] : element.Attributes()) writer.AddAttribute(name, value);
    writer.WriteString(element.GetValue());
}

}  // namespace

XMLWriter& XMLWriter::WriteXMLElement(XMLElement const& element) {
    // The open elements, each with the number of its children already begun.
    std::vector<std::pair<XMLElement const*, std::size_t>> open{{&element, 0}};
    WriteBeginning(*this, element);
    while (!open.empty()) {
        auto& [parent, begun] = open.back();
        if (begun == parent->Children().size()) {
            EndElement();
            open.pop_back();
        } else {
            auto& child = parent->Children()[begun++];
            WriteBeginning(*this, child);
            open.emplace_back(&child, 0);
        }
    }
    return *this;
}
