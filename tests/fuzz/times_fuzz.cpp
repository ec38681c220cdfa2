// What reads as a time, a date or a duration is written so that it reads back the same, and so is every duration.
#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"
#include "messages/xml_date_time.h"
#include "messages/xml_duration.h"
#include "tests/fuzz/fuzz.h"

template <class Read, class Write>
static void Check(std::string_view input, Read read, Write write) {
    AutoUString<UTF8> text;
    if (!Succeeds([&] { text = write(read(Text(input))); })) return;
    Require(write(read(text.Ref())).AsStringView() == text.AsStringView());
}

void Fuzz(std::string_view input) {
    Check(input, TextToTime, TimeToText);
    Check(input, XMLDateToDateRecord, DateRecordToXMLDate);
    Check(input, XMLDateTimeToInstant, InstantToXMLDateTime);
    TimeInterval const interval(TakeInteger<long long>(input));
    Require(XMLDurationToTimeInterval(TimeIntervalToXMLDuration(interval)) == interval);
}
