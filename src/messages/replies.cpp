#include "messages/replies.h"

#include "foundation/text/ustring_builder.h"
#include "xml/serialize.h"
#include "xml/xml_writer.h"

namespace {

template <class Content>
AutoUString<UTF8> Document(char const* root, char const* message, Content content) {
    UStringBuilder<UTF8> text;
    XMLWriter writer(text, XMLFormatStyle::Indented);
    writer.BeginDocument(EncodingDeclaration::WithEncoding);
    writer.BeginElement(root).BeginElement(message);
    content(writer);
    writer.EndElement().EndDocument();
    return text.MakeString();
}

}  // namespace

template <>
AutoUString<UTF8> ConvertToXML(ReadyForData const&) {
    return Document("ClientToUI", "ReadyForData", [](XMLWriter&) {});
}

template <>
AutoUString<UTF8> ConvertToXML(ClientUIErrorMessage const& error) {
    return Document("ClientToUI", "ClientUIErrorMessage", [&](XMLWriter& writer) {
        XMLSave(writer, "DebugString", error.debug_string);
        XMLSave(writer, "ErrorCode", static_cast<unsigned>(error.error_code));
    });
}

template <>
AutoUString<UTF8> ConvertToXML(ActionTaken const& taken) {
    return Document("UIToClient", "ActionTaken", [&](XMLWriter& writer) {
        XMLSave(writer, "IsCancel", taken.is_cancel);
        XMLSave(writer, "IsOffer", taken.is_offer);
        XMLSave(writer, "ID", taken.id);
    });
}

template <>
AutoUString<UTF8> ConvertToXML(RemindTime const& remind) {
    return Document("UIToClient", "RemindTime", [&](XMLWriter& writer) { XMLSave(writer, "TimeObject", remind.time); });
}

template <>
AutoUString<UTF8> ConvertToXML(RemindInterval const& remind) {
    return Document("UIToClient", "RemindInterval",
                    [&](XMLWriter& writer) { XMLSave(writer, "TimeInterval", remind.interval); });
}
