#include "messages/xml_date_time.h"

#include <algorithm>
#include <cstdlib>

#include "foundation/text/numerals.h"
#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"

namespace {

constexpr int kMostMinutesFromUTC = 14 * 60;

void WriteDate(Buffer& text, DateRecord const& date) {
    (text.Number(date.year, 4) << "-").Number(static_cast<unsigned char>(date.month), 2) << "-";
    text.Number(date.day, 2);
}

void WriteZone(Buffer& text, TimeZone zone) {
    if (zone.Seconds() / 60 == 0) {
        text << "Z";
    } else {
        WriteOffset(text, zone, ":");
    }
}

bool TakeDate(TimeScanner& scanner, DateRecord& date) {
    unsigned char month = 0;
    if (!scanner.TakeYear(date.year) || !scanner.Take("-") || !scanner.TakeTwoDigits(month)) return false;
    date.month = static_cast<Month>(month);
    return scanner.Take("-") && scanner.TakeTwoDigits(date.day) && date.Valid();
}

bool TakeFraction(TimeScanner& scanner, unsigned int& microseconds) {
    if (!scanner.Take(".")) return true;
    std::string_view digits;
    if (!scanner.TakeDigits(digits)) return false;
    digits = digits.substr(0, 6);
    microseconds = ReadAsciiDecimalNumeral(digits);
    for (auto i = digits.size(); i < 6; ++i) microseconds *= 10;
    return true;
}

bool TakeTime(TimeScanner& scanner, TimeOfDay& time, unsigned int& microseconds) {
    if (!scanner.TakeTimeOfDay(time) || !TakeFraction(scanner, microseconds)) return false;
    return time.Valid() || (time == TimeOfDay{24, 0, 0} && microseconds == 0);
}

bool TakeZone(TimeScanner& scanner, TimeZone& zone) {
    zone = TimeZone();
    if (scanner.Take("Z")) return true;
    return scanner.TakeOffset(":", zone) && std::abs(zone.Seconds()) <= kMostMinutesFromUTC * 60;
}

// Judges a text when all of it was scanned.
void Check(bool read, bool negative) {
    if (!read) throw InvalidDateTimeString();
    if (negative) throw InvalidDateTimeNegativeYear();
}

}  // namespace

AutoUString<UTF8> DateRecordToXMLDate(DateRecord const& date) {
    unsigned char room[24];
    Buffer text(room);
    WriteDate(text, date);
    return text.MakeText();
}

AutoUString<UTF8> TimeOfDayToXMLTime(TimeOfDay const& time) {
    unsigned char room[16];
    Buffer text(room);
    text << time;
    return text.MakeText();
}

AutoUString<UTF8> TimeZoneToText(TimeZone const& zone) {
    unsigned char room[16];
    Buffer text(room);
    WriteZone(text, zone);
    return text.MakeText();
}

AutoUString<UTF8> InstantToXMLDateTime(Instant const& instant) {
    int const minutes = std::clamp(TimeZone::Local().Seconds() / 60, -kMostMinutesFromUTC, kMostMinutesFromUTC);
    TimeObject const time(instant, TimeZone(minutes * 60));
    unsigned char room[48];
    Buffer text(room);
    WriteDate(text, time.Date());
    text << "T" << time.Time();
    WriteZone(text, time.Zone());
    return text.MakeText();
}

DateRecord XMLDateToDateRecord(UStringRef<UTF8> text) {
    TimeScanner scanner(text);
    bool const negative = scanner.Take("-");
    DateRecord date;
    Check(TakeDate(scanner, date) && scanner.AtEnd(), negative);
    return date;
}

Instant XMLDateTimeToInstant(UStringRef<UTF8> text) {
    TimeScanner scanner(text);
    bool const negative = scanner.Take("-");
    DateRecord date;
    TimeOfDay time;
    unsigned int microseconds = 0;
    TimeZone zone = TimeZone::Local();
    bool const read = TakeDate(scanner, date) && scanner.Take("T") && TakeTime(scanner, time, microseconds) &&
                      (scanner.AtEnd() || TakeZone(scanner, zone)) && scanner.AtEnd();
    Check(read, negative);
    return Instant(TimeObject(date, time, zone)) + TimeInterval(microseconds);
}
