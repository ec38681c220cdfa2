// Every duration writes and reads back, what reads as one too; a date is written as it was read.
#include "messages/xml_date_time.h"
#include "messages/xml_duration.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    TimeInterval interval;
    DateRecord date;
    if (Succeeds([&] { date = XMLDateToDateRecord(Text(input)); }))
        Require(DateRecordToXMLDate(date).AsStringView() == input);
    if (!Succeeds([&] { interval = XMLDurationToTimeInterval(Text(input)); }))
        interval = TimeInterval(TakeInteger<long long>(input));
    Require(XMLDurationToTimeInterval(TimeIntervalToXMLDuration(interval)) == interval);
}
