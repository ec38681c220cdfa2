// What reads as a time, a date or a duration writes and reads back to the field, and so does every instant and interval.
#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"
#include "messages/xml_date_time.h"
#include "messages/xml_duration.h"
#include "tests/fuzz/fuzz.h"

static void FuzzDateAndDuration(std::string_view input) {
    DateRecord date;
    if (Succeeds([&] { date = XMLDateToDateRecord(Text(input)); }))
        Require(DateRecordToXMLDate(date).AsStringView() == input);
    TimeInterval interval;
    if (!Succeeds([&] { interval = XMLDurationToTimeInterval(Text(input)); }))
        interval = TimeInterval(TakeInteger<long long>(input));
    Require(XMLDurationToTimeInterval(TimeIntervalToXMLDuration(interval)) == interval);
}

void Fuzz(std::string_view input) {
    FuzzDateAndDuration(input);
    TimeObject time;
    Instant instant;
    bool const is_time = Succeeds([&] { time = TextToTime(Text(input)); });
    if (!Succeeds([&] { instant = XMLDateTimeToInstant(Text(input)); }))
        instant = Instant(TakeInteger<long long>(input));
    if (!is_time) time = TimeObject(instant, TimeZone(TakeInteger<short>(input) % 6'000 * 60));
    auto const back = TextToTime(TimeToText(time));
    Require(time.Valid() && back.Date() == time.Date() && back.Time() == time.Time() && back.Zone() == time.Zone());
    long long const seconds = instant.Microseconds() / TimeInterval::kSecond;
    if (seconds < 2 * TimeInterval::kDay / TimeInterval::kSecond - TimeObject::kSecondsBefore1970) return;
    Require(XMLDateTimeToInstant(InstantToXMLDateTime(instant)) == Instant(0) + TimeInterval::Seconds(seconds));
}
