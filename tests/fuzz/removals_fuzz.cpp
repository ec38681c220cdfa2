// A withdrawal that is written reads back as it was.
#include "foundation/text/ustring_builder.h"
#include "messages/client_requests.h"
#include "tests/fuzz/fuzz.h"
#include "xml/serialize.h"
#include "xml/simple_xml.h"

void Fuzz(std::string_view input) {
    auto const number = TakeInteger<unsigned long long>(input);
    RemoveRequest const request{number, static_cast<RemoveType>(number % 4)};
    UStringBuilder<UTF8> text;
    XMLWriter writer(text, XMLFormatStyle::Indented);
    XMLSave(writer, "RemoveRequest", request);
    RemoveRequest back;
    XMLLoad(*SimpleXML::Parse(text.Ref()), back);
    Require(back.id == request.id && back.remove_type == request.remove_type);
}
