#include "messages/xml_duration.h"

#include "foundation/time/time_to_text.h"
#include "messages/xml_duration_parser.h"

namespace {

using Magnitude = unsigned long long;

void WriteSeconds(Buffer& text, Magnitude microseconds) {
    text.Number(microseconds / TimeInterval::kSecond, 1);
    if (auto const part = microseconds % TimeInterval::kSecond) (text << ".").Number(part, 6);
    text << "S";
}

void WriteTimeOfDay(Buffer& text, Magnitude microseconds) {
    text << "T";
    if (auto const hours = microseconds / TimeInterval::kHour) text.Number(hours, 1) << "H";
    microseconds %= TimeInterval::kHour;
    if (auto const minutes = microseconds / TimeInterval::kMinute) text.Number(minutes, 1) << "M";
    microseconds %= TimeInterval::kMinute;
    if (microseconds > 0) WriteSeconds(text, microseconds);
}

}  // namespace

AutoUString<UTF8> TimeIntervalToXMLDuration(TimeInterval const& interval) {
    if (interval == TimeInterval()) return AutoUString<UTF8>("PT0S");
    bool const negative = interval < TimeInterval();
    auto magnitude = static_cast<Magnitude>(interval.Microseconds());
    if (negative) magnitude = 0 - magnitude;
    unsigned char room[32];
    Buffer text(room);
    text << (negative ? "-P" : "P");
    if (auto const days = magnitude / TimeInterval::kDay) text.Number(days, 1) << "D";
    if (auto const rest = magnitude % TimeInterval::kDay) WriteTimeOfDay(text, rest);
    return text.MakeText();
}

TimeInterval XMLDurationToTimeInterval(UStringRef<UTF8> text) {
    XMLDurationParser parser;
    for (char const c : text.AsStringView()) parser.HandleChar(c);
    return parser.Finish();
}
