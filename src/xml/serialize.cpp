#include "xml/serialize.h"

#include "foundation/text/numerals.h"
#include "foundation/text/transcode.h"
#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"
#include "messages/xml_duration.h"

void XMLFromText(UStringRef<UTF8> text, SharedUString<UTF8>& out) {
    out = SharedUString<UTF8>(text);
}
void XMLFromText(UStringRef<UTF8> text, AutoUString<UTF8>& out) {
    out = AutoUString<UTF8>(text);
}
void XMLFromText(UStringRef<UTF8> text, CopiedUString<UTF8>& out) {
    out = text;
}
void XMLFromText(UStringRef<UTF8> text, Stringy& out) {
    out = text.AsStringView();
}
void XMLFromText(UStringRef<UTF8> text, bool& out) {
    out = text.AsStringView() != "0" && text.AsStringView() != "false";
}
void XMLFromText(UStringRef<UTF8> text, unsigned long long& out) {
    out = ReadUTF8DecimalNumeral64(text);
}
void XMLFromText(UStringRef<UTF8> text, unsigned int& out) {
    out = ReadUTF8DecimalNumeral(text);
}
void XMLFromText(UStringRef<UTF8> text, TimeInterval& out) {
    out = XMLDurationToTimeInterval(text);
}
void XMLFromText(UStringRef<UTF8> text, TimeObject& out) {
    out = TextToTime(text);
}
void XMLFromText(UStringRef<UTF8> text, FileLocation& out) {
    out = MakeFileLocation(text);
}
void XMLFromText(UStringRef<UTF8> text, FileName& out) {
    out.SafeSet(text.AsStringView().data(), text.size());
}

void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, bool& out) {
    if (element.HasAttribute(name)) XMLFromText(element.GetAttribute(name), out);
}

AutoUString<UTF8> XMLToText(bool value) {
    return AutoUString<UTF8>(UStringRef<UTF8>(value ? "true" : "false"));
}
AutoUString<UTF8> XMLToText(unsigned long long value) {
    return Transcode<UTF8>(MakeAsciiDecimalNumeral64(value, 1).Ref());
}
AutoUString<UTF8> XMLToText(unsigned int value) {
    return XMLToText(static_cast<unsigned long long>(value));
}
AutoUString<UTF8> XMLToText(TimeInterval const& value) {
    return TimeIntervalToXMLDuration(value);
}
AutoUString<UTF8> XMLToText(TimeObject const& value) {
    return TimeToText(value);
}
UStringRef<UTF8> XMLToText(UStringRef<UTF8> value) {
    return value;
}
UStringRef<UTF8> XMLToText(char const* value) {
    return value;
}
UStringRef<UTF8> XMLToText(Stringy const& value) {
    return UStringRef<UTF8>(std::string_view(value));
}
UStringRef<UTF8> XMLToText(FileLocation const& value) {
    return UStringRef<UTF8>(value.AsStringView());
}
UStringRef<UTF8> XMLToText(FileName const& value) {
    return UStringRef<UTF8>(value.AsStringView());
}

void XMLSave(XMLWriter& writer, UStringRef<UTF8> text) {
    std::string_view const bytes = text.AsStringView();
    bool const markup = bytes.find_first_of("<&>") != bytes.npos;
    if (markup && bytes.find("]]>") == bytes.npos)
        writer.WriteCData(text);
    else
        writer.WriteString(text);
}
