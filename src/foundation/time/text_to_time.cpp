#include "foundation/time/text_to_time.h"

#include <algorithm>

#include "foundation/text/ascii.h"
#include "foundation/text/numerals.h"
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

void TimeScanner::Trim() {
    constexpr char const* kBlanks = " \t\r\n";
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
    rest_ = rest_.substr(0, rest_.find_last_not_of(kBlanks) + 1);
}

bool TimeScanner::Take(std::string_view literal) {
    if (!rest_.starts_with(literal)) return false;
    rest_.remove_prefix(literal.size());
    return true;
}

bool TimeScanner::TakeTwoDigits(unsigned char& value) {
    unsigned int number = 0;
    if (TryReadAsciiDecimalNumeral(rest_.substr(0, 2), number) != NumeralResult::Success || rest_.size() < 2)
        return false;
    value = static_cast<unsigned char>(number);
    rest_.remove_prefix(2);
    return true;
}

bool TimeScanner::TakeDigits(std::string_view& digits) {
    auto const end =
        std::ranges::find_if_not(rest_, [](char c) { return Ascii::Digit(static_cast<unsigned char>(c)); });
    digits = {rest_.begin(), end};
    rest_.remove_prefix(digits.size());
    return !digits.empty();
}

bool TimeScanner::TakeYear(std::uint32_t& year) {
    std::string_view digits;
    if (!TakeDigits(digits) || digits.size() < 4 || (digits.size() > 4 && digits.front() == '0')) return false;
    return TryReadAsciiDecimalNumeral(digits, year) == NumeralResult::Success;
}

bool TimeScanner::TakeTimeOfDay(TimeOfDay& time) {
    return TakeTwoDigits(time.hour) && Take(":") && TakeTwoDigits(time.minute) && Take(":") &&
           TakeTwoDigits(time.second);
}

bool TimeScanner::TakeOffset(std::string_view separator, TimeZone& zone) {
    bool const west = Take("-");
    unsigned char hours = 0;
    unsigned char minutes = 0;
    if (!west && !Take("+")) return false;
    if (!TakeTwoDigits(hours) || !Take(separator) || !TakeTwoDigits(minutes) || minutes > 59) return false;
    int const seconds = hours * 3'600 + minutes * 60;
    zone = TimeZone(west ? -seconds : seconds);
    return true;
}

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
