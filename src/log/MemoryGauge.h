#pragma once

#include "platform/SlideBar.h"
#include "state/AppState.h"

#include <string>

namespace ventrix::log {

// Samples the log holds when it is full.
inline constexpr long long kLogCapacity = static_cast<long long>(state::kMaxSwapPages) * state::kPageSize;

// Logging time left, in seconds, for the samples still free at the given interval. Intervals
// other than 2, 5, 10, 30 and 60 s count as 1 s.
long long RemainingLogSeconds(long long usedSamples, double sampleIntervalMs);

// The remaining time as the bar shows it, whole minutes: "5 Days 0 Hr 0 Min", " 5 Hrs 30 Mins"
// (a leading blank when no whole day is left), "0 Min" when nothing is left.
std::string RemainingTimeText(long long seconds);

// The memory bar: how much logging time is left at the current sampling interval, as a text
// ("5 Days 0 Hr 0 Min") and a percentage of capacity left. Redraws only when the text changes.
// The text is the bar's caption, the percentage its value.
class MemoryGauge {
public:
    MemoryGauge(const state::AppState& state, platform::SlideBar& bar);
    void UpdateMemoryGauge();

private:
    const state::AppState& m_state;
    platform::SlideBar& m_bar;
};

} // namespace ventrix::log
