#include "log/MemoryGauge.h"

#include <array>
#include <utility>

namespace ventrix::log {

long long RemainingLogSeconds(long long usedSamples, double sampleIntervalMs)
{
    static constexpr std::array<std::pair<double, long long>, 5> kSecondsPerSample { { { 2000.0, 2 },
        { 5000.0, 5 }, { 10000.0, 10 }, { 30000.0, 30 }, { 60000.0, 60 } } };
    long long secondsPerSample = 1;
    for (const auto& [intervalMs, seconds] : kSecondsPerSample) {
        if (sampleIntervalMs == intervalMs)
            secondsPerSample = seconds;
    }
    return (kLogCapacity - usedSamples) * secondsPerSample;
}

std::string RemainingTimeText(long long seconds)
{
    const long long days = seconds / 86400;
    const long long hours = (seconds % 86400) / 3600;
    const long long minutes = (seconds % 3600) / 60;

    std::string text;
    if (days == 1)
        text = "1 Day";
    else if (days >= 2)
        text = std::to_string(days) + " Days";

    if (hours == 0) {
        if (!text.empty())
            text += " 0 Hr";
    } else if (hours == 1) {
        text += " 1 Hr";
    } else {
        text += " " + std::to_string(hours) + " Hrs";
    }

    if (minutes == 0) {
        text = text.empty() ? "0 Min" : text + " 0 Min";
    } else if (minutes == 1) {
        text += " 1 Min";
    } else {
        text += " " + std::to_string(minutes) + " Mins";
    }
    return text;
}

MemoryGauge::MemoryGauge(const state::AppState& state, platform::SlideBar& bar)
    : m_state(state)
    , m_bar(bar)
{
}

void MemoryGauge::UpdateMemoryGauge()
{
    const long long used = state::LoggedSamples(m_state);
    const std::string text = RemainingTimeText(RemainingLogSeconds(used, m_state.SampleIntervalMs));

    if (m_state.IsBufferFull) {
        m_bar.SetCaption("0 Min");
        m_bar.SetValue(0.0);
        return;
    }
    if (m_bar.Caption() == text)
        return;
    m_bar.SetCaption(text);
    m_bar.SetValue(100.0 - static_cast<double>(used) / static_cast<double>(kLogCapacity) * 100.0);
}

} // namespace ventrix::log
