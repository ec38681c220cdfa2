// What reads as a duration writes, every duration writes, and both read back.
#include "messages/xml_duration.h"
#include "tests/fuzz/fuzz.h"

static void RequireThatItComesBack(TimeInterval interval) {
    auto const text = TimeIntervalToXMLDuration(interval);
    Require(XMLDurationToTimeInterval(text) == interval);
}

void Fuzz(std::string_view input) {
    TimeInterval interval;
    if (Succeeds([&] { interval = XMLDurationToTimeInterval(Text(input)); })) RequireThatItComesBack(interval);
    RequireThatItComesBack(TimeInterval(TakeInteger<long long>(input)));
}
