#include "localisation/deadline_text.h"

#include "localisation/locale_text.h"
#include "localisation/uformat.h"
#include "messages/client_requests.h"

namespace {

using Text = AutoUString<UTF8>;

Text Fixed(char const* english) {
    return MakeUString(UFormat(english));
}

Text Number(long long count) {
    return FormattedNumber(static_cast<unsigned long long>(count));
}

// `one` for a count of 1, `many`, whose one variable is the count, for any other.
Text Counted(long long count, char const* one, char const* many) {
    if (count == 1 && one) return Fixed(one);
    return MakeUString(UFormat(many).With(Number(count)));
}

long long RoundedHalfDown(long long value, long long unit) {
    return value / unit + (value % unit > unit / 2 ? 1 : 0);
}

Text MinutesAndSeconds(long long minutes, long long seconds) {
    if (minutes == 0) return Counted(seconds, "1 second", "{seconds} seconds");
    if (minutes == 1) return Counted(seconds, "1 minute, 1 second", "1 minute, {seconds} seconds");
    if (seconds == 1) return Counted(minutes, nullptr, "{minutes} minutes, 1 second");
    return MakeUString(UFormat("{minutes} minutes, {seconds} seconds").With(Number(minutes), Number(seconds)));
}

Text PhraseFor(long long remaining) {
    using Interval = TimeInterval;
    if (remaining > Interval::kDay) return Counted(RoundedHalfDown(remaining, Interval::kDay), "1 day", "{days} days");
    if (remaining > Interval::kHour)
        return Counted(RoundedHalfDown(remaining, Interval::kHour), "1 hour", "{hours} hours");
    long long const minutes = remaining / Interval::kMinute;
    if (remaining > kNearDeadline.Microseconds()) return Counted(minutes, nullptr, "{minutes} minutes");
    return MinutesAndSeconds(minutes, remaining % Interval::kMinute / Interval::kSecond);
}

Text PastPhrase(bool exact, bool relative) {
    if (!exact) return Fixed("Overdue");
    return Fixed(relative ? "Running..." : "0 seconds");
}

}  // namespace

Text FormattedDeadline(Instant const& deadline, Instant const& now, bool exact, bool relative) {
    return FormattedDeadline(deadline - now, exact, relative);
}

Text FormattedDeadline(TimeInterval const& remaining, bool exact, bool relative) {
    long long const left = remaining.Microseconds();
    if (left < 0) return PastPhrase(exact, relative);
    if (left <= kNearDeadline.Microseconds() && !exact) return Fixed("Now");
    auto phrase = PhraseFor(left);
    return relative ? MakeUString(UFormat("{time} from now").With(phrase)) : std::move(phrase);
}

Text FormattedNumber(unsigned long long value) {
    return UnixPlatform::FormattedNumber(value);
}
