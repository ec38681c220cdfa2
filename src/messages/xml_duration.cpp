#include "messages/xml_duration.h"

#include <limits>
#include <utility>

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/ascii.h"
#include "foundation/time/time_to_text.h"

namespace {

using Magnitude = unsigned long long;

constexpr std::uint32_t kFinestScale = 1'000'000;

[[noreturn]] void FailTooLarge() {
    throw DebuggableException("Could not convert XMLDuration to TimeInterval due to integer overflow.");
}

[[noreturn]] void FailTooFine() {
    throw DebuggableException(
        "Could not convert XMLDuration to TimeInterval: cannot handle more than microsecond precision.");
}

void WriteSeconds(Buffer& text, Magnitude microseconds) {
    text.Number(microseconds / TimeInterval::kSecond, 1);
    if (auto const part = microseconds % TimeInterval::kSecond) (text << ".").Number(part, 6);
    text << "S";
}

void WriteTimeOfDay(Buffer& text, Magnitude microseconds) {
    text << "T";
    if (auto const hours = microseconds / TimeInterval::kHour) text.Number(hours, 1) << "H";
    microseconds %= TimeInterval::kHour;
    if (auto const minutes = microseconds / TimeInterval::kMinute) text.Number(minutes, 1) << "M";
    microseconds %= TimeInterval::kMinute;
    if (microseconds > 0) WriteSeconds(text, microseconds);
}

}  // namespace

AutoUString<UTF8> TimeIntervalToXMLDuration(TimeInterval const& interval) {
    if (interval == TimeInterval()) return AutoUString<UTF8>("PT0S");
    bool const negative = interval < TimeInterval();
    auto magnitude = static_cast<Magnitude>(interval.Microseconds());
    if (negative) magnitude = 0 - magnitude;
    unsigned char room[32];
    Buffer text(room);
    text << (negative ? "-P" : "P");
    if (auto const days = magnitude / TimeInterval::kDay) text.Number(days, 1) << "D";
    if (auto const rest = magnitude % TimeInterval::kDay) WriteTimeOfDay(text, rest);
    return text.MakeText();
}

TimeInterval XMLDurationToTimeInterval(UStringRef<UTF8> text) {
    XMLDurationParser parser;
    for (char const c : text.AsStringView()) parser.HandleChar(c);
    return parser.Finish();
}

void XMLDurationParser::Fail() {
    throw DebuggableException("Could not convert XMLDuration to TimeInterval");
}

void XMLDurationParser::HandleChar(char c) {
    if (digits_allowed_ && Ascii::Digit(static_cast<unsigned char>(c)))
        return HandleDigit(static_cast<unsigned int>(c - '0'));
    auto const place = allowed_.find(c);
    if (place == std::string_view::npos) Fail();
    allowed_.remove_prefix(place + 1);
    HandleDesignator(c);
}

void XMLDurationParser::HandleDigit(unsigned int digit) {
    auto const number = std::uint64_t{number_} * 10 + digit;
    if (number > std::numeric_limits<std::uint32_t>::max()) FailTooLarge();
    number_ = static_cast<std::uint32_t>(number);
    if (scale_ <= kFinestScale) scale_ *= 10;
    digits_pending_ = true;
}

void XMLDurationParser::HandleDesignator(char c) {
    switch (c) {
        case '-':
            negative_ = true;
            break;
        case 'P':
            digits_allowed_ = true;
            allowed_ = "DT";
            break;
        case 'D':
            days_ = TakeComponent();
            digits_allowed_ = false;
            break;
        case 'T':
            if (digits_pending_) Fail();
            digits_allowed_ = true;
            // Days alone are a duration, but a "T" after them promises more.
            component_complete_ = false;
            allowed_ = "HM.S";
            break;
        case 'H':
            hours_ = TakeComponent();
            break;
        case 'M':
            minutes_ = TakeComponent();
            break;
        case '.':
            whole_seconds_ = TakeNumber();
            fraction_open_ = true;
            break;
        case 'S':
            TakeSeconds();
            break;
    }
}

std::uint32_t XMLDurationParser::TakeNumber() {
    if (!std::exchange(digits_pending_, false)) Fail();
    scale_ = 1;
    return std::exchange(number_, 0);
}

std::uint32_t XMLDurationParser::TakeComponent() {
    component_complete_ = true;
    return TakeNumber();
}

void XMLDurationParser::TakeSeconds() {
    auto const scale = scale_;
    seconds_ = TakeComponent();
    if (!std::exchange(fraction_open_, false)) return;
    if (scale > kFinestScale) FailTooFine();
    microseconds_ = kFinestScale / scale * seconds_;
    seconds_ = whole_seconds_;
}

TimeInterval XMLDurationParser::Finish() const {
    if (digits_pending_ || fraction_open_ || !component_complete_) Fail();
    return Sum();
}

TimeInterval XMLDurationParser::Sum() const {
    using Interval = TimeInterval;
    // Without the days, the greatest numbers add up to less than 64 bits unsigned hold.
    unsigned long long sum = hours_ * 1ULL * Interval::kHour + minutes_ * 1ULL * Interval::kMinute +
                             seconds_ * 1ULL * Interval::kSecond + microseconds_;
    unsigned long long days = 0;
    bool const overflow =
        __builtin_mul_overflow(1ULL * days_, 1ULL * Interval::kDay, &days) || __builtin_add_overflow(sum, days, &sum);
    // The negative range reaches one further.
    if (overflow || sum > std::numeric_limits<long long>::max() + (negative_ ? 1ULL : 0ULL)) FailTooLarge();
    return Interval(static_cast<long long>(negative_ ? 0 - sum : sum));
}
