#include "localisation/locale_text.h"

#include "foundation/text/numerals.h"
#include "foundation/text/transcode.h"
#include "foundation/time/time_object.h"
#include "foundation/time/time_to_text.h"
#include "localisation/uformat.h"

namespace UnixPlatform {

namespace {

template <class Value>
AutoUString<UTF8> PlainText(Value const& value) {
    unsigned char room[32];
    Buffer text(room);
    text << value;
    return text.MakeText();
}

AutoUString<UTF8> NameOf(DayOfWeek day, char const* const (&names)[7]) {
    auto const index = static_cast<std::size_t>(day);
    return MakeUString(UFormat(index < 7 ? names[index] : "???"));
}

}  // namespace

AutoUString<UTF8> FormattedTimeOfDay(TimeOfDay const& time) {
    return PlainText(time);
}

AutoUString<UTF8> FormattedDateRecord(DateRecord const& date) {
    return PlainText(date);
}

AutoUString<UTF8> FormattedLocalTime(Instant const& instant) {
    TimeObject const local(instant, TimeZone::Local());
    return MakeUString(
        UFormat("{date} {time}").With(FormattedDateRecord(local.Date()), FormattedTimeOfDay(local.Time())));
}

AutoUString<UTF8> FormattedLongDayOfWeek(DayOfWeek const& day) {
    return NameOf(day, {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"});
}

AutoUString<UTF8> FormattedShortDayOfWeek(DayOfWeek const& day) {
    return NameOf(day, {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"});
}

AutoUString<UTF8> FormattedNumber(unsigned long long value) {
    return FormattedNumber(MakeAsciiDecimalNumeral64(value, 1), 0);
}

AutoUString<UTF8> FormattedNumber(UStringRef<USAscii> numeral, unsigned int) {
    return Transcode<UTF8>(numeral);
}

}  // namespace UnixPlatform
