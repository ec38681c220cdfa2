#include "foundation/time/text_to_time.h"

#include "foundation/time/time_scanner.h"
#include "foundation/time/time_to_text.h"

namespace {

bool TakeWeekday(TimeScanner& scanner) {
    for (int day = 0; day < 7; ++day)
        if (scanner.Take(DayOfWeekToText(static_cast<DayOfWeek>(day)))) return true;
    return false;
}

bool TakeMonth(TimeScanner& scanner, Month& month) {
    for (int number = 1; number <= 12; ++number) {
        month = static_cast<Month>(number);
        if (scanner.Take(MonthToText(month))) return true;
    }
    return false;
}

bool TakeDate(TimeScanner& scanner, DateRecord& date) {
    return TakeWeekday(scanner) && scanner.Take(", ") && scanner.TakeTwoDigits(date.day) && scanner.Take(" ") &&
           TakeMonth(scanner, date.month) && scanner.Take(" ") && scanner.TakeYear(date.year);
}

}  // namespace

TimeObject TextToTime(UStringRef<UTF8> text) {
    TimeScanner scanner(text);
    scanner.Trim();
    DateRecord date;
    TimeOfDay time;
    TimeZone zone;
    bool const read = TakeDate(scanner, date) && scanner.Take(" ") && scanner.TakeTimeOfDay(time) &&
                      scanner.Take(" ") && scanner.TakeOffset("", zone) && scanner.AtEnd();
    if (!read || !date.Valid() || !time.Valid()) throw InvalidTimeText();
    return TimeObject(date, time, zone);
}
