// How long the text of durations and times takes to write and to read back. One iteration is one round trip.
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"
#include "messages/xml_duration.h"

namespace {

// Values of every magnitude, the same in each run.
std::vector<long long> Values() {
    std::mt19937_64 random(1);
    std::vector<long long> values;
    for (int i = 0; i < 1'024; ++i) values.push_back(static_cast<long long>(random() >> 1) >> (i % 63));
    return values;
}

// Calls `round_trip` with value after value; the run fails when one does not come back.
template <class RoundTrip>
void Measure(benchmark::State& state, RoundTrip round_trip) {
    auto const values = Values();
    while (state.KeepRunningBatch(static_cast<std::int64_t>(values.size()))) {
        for (auto const value : values)
            if (round_trip(value) != value) return state.SkipWithError("a value came back as another");
    }
}

BENCHMARK_CAPTURE(Measure, Duration, [](long long value) {
    return XMLDurationToTimeInterval(TimeIntervalToXMLDuration(TimeInterval(value))).Microseconds();
});

// Times have whole seconds: the value is counted in them.
BENCHMARK_CAPTURE(Measure, Time, [](long long value) {
    auto const seconds = value % 100'000'000'000;
    auto const text = TimeToText(TimeObject(Instant(seconds * TimeInterval::kSecond), TimeZone(3'600)));
    return value - seconds + Instant(TextToTime(text)).Microseconds() / TimeInterval::kSecond;
});

}  // namespace
