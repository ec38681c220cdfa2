// What reads as a duration writes, every duration writes, and both read back; a date is written as it was read.
#include "messages/xml_date_time.h"
#include "messages/xml_duration.h"
#include "tests/fuzz/fuzz.h"

static void RequireThatItComesBack(TimeInterval interval) {
    auto const text = TimeIntervalToXMLDuration(interval);
    Require(XMLDurationToTimeInterval(text) == interval);
}

void Fuzz(std::string_view input) {
    TimeInterval interval;
    DateRecord date;
    if (Succeeds([&] { interval = XMLDurationToTimeInterval(Text(input)); })) RequireThatItComesBack(interval);
    if (Succeeds([&] { date = XMLDateToDateRecord(Text(input)); }))
        Require(DateRecordToXMLDate(date).AsStringView() == input);
    RequireThatItComesBack(TimeInterval(TakeInteger<long long>(input)));
}
