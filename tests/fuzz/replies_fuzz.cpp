// Every record that is written reads back field by field.
#include <algorithm>

#include "foundation/text/ustring_builder.h"
#include "messages/remove_request.h"
#include "messages/replies.h"
#include "tests/fuzz/fuzz.h"
#include "xml/serialize.h"
#include "xml/simple_xml.h"

template <class T, class Record>
static T Read(Record const& record, char const* field) {
    T value{};
    XMLLoad(SimpleXML::Parse(ConvertToXML(record))->Children().at(0).GetChildElement(field), value);
    return value;
}

static RemoveRequest Reread(RemoveRequest const& request) {
    UStringBuilder<UTF8> text;
    XMLWriter writer(text, XMLFormatStyle::Indented);
    XMLSave(writer.BeginElement("RemoveRequest"), request);
    writer.EndDocument();
    RemoveRequest back;
    XMLLoad(*SimpleXML::Parse(text.Ref()), back);
    return back;
}

void Fuzz(std::string_view input) {
    std::string text(input);
    std::erase(text, '\0');  // no document can hold it
    using Error = ClientUIErrorMessage;
    Require(Read<Stringy>(Error(Error::ErrorCode::DialogNotShown, text), "DebugString") == text);
    auto const number = TakeInteger<unsigned long long>(input);
    Require(Read<unsigned long long>(ActionTaken{.id = number}, "ID") == number);
    TimeInterval const interval(static_cast<long long>(number));
    Require(Read<TimeInterval>(RemindInterval{interval}, "TimeInterval") == interval);
    TimeObject const time(Instant(0) + interval, TimeZone(TakeInteger<short>(input) % 6'000 * 60));
    Require(Read<TimeObject>(RemindTime{time}, "TimeObject") == time);
    RemoveRequest const removal{number, static_cast<RemoveType>(number % 4)};
    Require(Reread(removal).id == number && Reread(removal).remove_type == removal.remove_type);
}
