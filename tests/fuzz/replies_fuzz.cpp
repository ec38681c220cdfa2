// Every reply that is written reads back field by field, and so does a withdrawal.
#include "foundation/text/ustring_builder.h"
#include "messages/client_requests.h"
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

static RemoveRequest WrittenAndRead(RemoveRequest const& request) {
    UStringBuilder<UTF8> text;
    XMLWriter writer(text, XMLFormatStyle::Indented);
    XMLSave(writer, "RemoveRequest", request);
    RemoveRequest back;
    XMLLoad(*SimpleXML::Parse(text.Ref()), back);
    return back;
}

void Fuzz(std::string_view input) {
    auto const number = TakeInteger<unsigned long long>(input);
    Require(Read<unsigned long long>(ActionTaken{.id = number}, "ID") == number);
    TimeInterval const interval(static_cast<long long>(number));
    Require(Read<TimeInterval>(RemindInterval{interval}, "TimeInterval") == interval);
    TimeObject const time(Instant(0) + interval, TimeZone(TakeInteger<short>(input) % 6'000 * 60));
    Require(Read<TimeObject>(RemindTime{time}, "TimeObject") == time);
    std::string const text(input.substr(0, input.find('\0')));  // no document can hold a zero
    Require(Read<Stringy>(ClientUIErrorMessage(ClientUIErrorMessage::ErrorCode(2), text), "DebugString") == text);
    auto const removal = WrittenAndRead({number, static_cast<RemoveType>(number % 4)});
    Require(removal.id == number && removal.remove_type == static_cast<RemoveType>(number % 4));
}
