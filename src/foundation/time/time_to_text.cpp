#include "foundation/time/time_to_text.h"

#include <algorithm>
#include <array>

#include "foundation/text/numerals.h"

Buffer& Buffer::operator<<(std::string_view text) {
    if (text.size() > room_.size() - size_) throw DataOverflow();
    std::copy(text.begin(), text.end(), room_.begin() + static_cast<std::ptrdiff_t>(size_));
    size_ += text.size();
    return *this;
}

Buffer& Buffer::Number(unsigned long long value, unsigned int min_digits) {
    return *this << MakeAsciiDecimalNumeral64(value, min_digits).AsStringView();
}

char const* DayOfWeekToText(DayOfWeek day) {
    static constexpr std::array kNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    auto const index = static_cast<std::size_t>(day);
    return index < kNames.size() ? kNames[index] : "???";
}

char const* MonthToText(Month month) {
    static constexpr std::array kNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    auto const index = static_cast<std::size_t>(month) - 1;
    return index < kNames.size() ? kNames[index] : "???";
}

Buffer& operator<<(Buffer& buffer, TimeOfDay const& time) {
    (buffer.Number(time.hour, 2) << ":").Number(time.minute, 2) << ":";
    return buffer.Number(time.second, 2);
}

Buffer& operator<<(Buffer& buffer, DateRecord const& date) {
    (buffer << DayOfWeekToText(date.DayOfWeek()) << ", ").Number(date.day, 2);
    return (buffer << " " << MonthToText(date.month) << " ").Number(date.year, 4);
}

Buffer& WriteOffset(Buffer& buffer, TimeZone zone, char const* separator) {
    bool const west = zone.Seconds() < 0;
    auto const minutes = static_cast<unsigned long long>(west ? -(zone.Seconds() / 60) : zone.Seconds() / 60);
    (buffer << (west ? "-" : "+")).Number(minutes / 60, 2) << separator;
    return buffer.Number(minutes % 60, 2);
}

Buffer& operator<<(Buffer& buffer, TimeZone const& zone) {
    return WriteOffset(buffer, zone, "");
}

Buffer& operator<<(Buffer& buffer, TimeObject const& time) {
    return buffer << time.Date() << " " << time.Time() << " " << time.Zone();
}

AutoUString<UTF8> TimeToText(TimeObject const& time) {
    unsigned char room[64];
    Buffer text(room);
    text << time;
    return text.MakeText();
}
