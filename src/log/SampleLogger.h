#pragma once

#include "log/MemoryGauge.h"
#include "log/SampleJournal.h"
#include "platform/MainControls.h"
#include "platform/Services.h"
#include "state/AppState.h"

#include <functional>
#include <string>

namespace ventrix::link {
class SerialLink;
}

namespace ventrix::log {

// Sampling while acquiring: SAMPLE_TIMER's tick decides whether a sample is due, keeps the due
// times in step with the clock (phase and lag corrections of the timer interval), stamps the
// sample with its due time, shows its line in the data log window and stores its 8-byte record in
// the memory page, flushing every full page to the swap file and stopping acquisition once the
// log is full. Each record also goes to the crash journal. Does not plot: the graph update is
// handed in.
class SampleLogger {
public:
    SampleLogger(state::AppState& state, platform::MainControls& controls, platform::Services& services,
        MemoryGauge& memory, link::SerialLink& link, std::function<void()> plotSample);

    void SampleTimerTick();
    void AppendSample();
    void StoreSampleRecord();
    // The journal starts again with an empty log (after a clear).
    void RestartJournal();

    // The live line of the current reading, without its line end: "10:15:30 AM    1.234 V".
    static std::string LiveLogLine(const state::AppState& state);

private:
    void StopOnFullLog();

    state::AppState& m_state;
    platform::MainControls& m_controls;
    platform::Services& m_services;
    MemoryGauge& m_memory;
    link::SerialLink& m_link;
    std::function<void()> m_plotSample;
    SampleJournal m_journal;
    bool m_journalStarted = false;
};

} // namespace ventrix::log
