#include "messages/remove_request.h"

#include <array>
#include <string_view>

#include "xml/serialize.h"

namespace {

// In the order of the enumeration.
constexpr std::array<char const*, 4> kRemoveTypes = {"Action", "Offer", "Message", "All"};

}  // namespace

void XMLLoad(XMLElement const& element, RemoveRequest& request) {
    Stringy type;
    XMLLoad(element, "RemoveType", type);
    for (std::size_t i = 0; i < kRemoveTypes.size(); ++i)
        if (type == kRemoveTypes[i]) request.remove_type = static_cast<RemoveType>(i);
    XMLLoad(element, "ID", request.id);
}

void XMLSave(XMLWriter& writer, RemoveRequest const& request) {
    XMLSave(writer, "RemoveType", UStringRef<UTF8>(kRemoveTypes[static_cast<std::size_t>(request.remove_type)]));
    XMLSave(writer, "ID", request.id);
}
