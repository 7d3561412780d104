#pragma once

#include "platform/Clock.h"
#include "platform/TextBox.h"
#include "platform/Timer.h"
#include "state/AppState.h"

#include <functional>
#include <string>

namespace ventrix::link {

class SerialLink;

// A development aid driven by DEBUG_TIMER: each tick hands the link a fixed frame (which the
// validator rejects, so the displayed reading never changes), then sets CountValue from a sine of
// the phase (taken in radians, so the values jump between about 0 and 4000), stamps the sample
// with the time of day, appends it to the log and plots it. Switches itself off once the log is
// full. Nothing in the window starts it; the composition root enables DEBUG_TIMER when the
// developer setting asks for it.
class FrameSimulator {
public:
    FrameSimulator(state::AppState& state, SerialLink& link, platform::Timer& debugTimer,
        const platform::Clock& clock, std::function<void()> appendSample, std::function<void()> plotSample);

    void DebugTimerTick();

    // The fixed frame as received: mode byte, bytes 2 to 8 and the checksum.
    static std::string SimulatedFrame();

private:
    state::AppState& m_state;
    SerialLink& m_link;
    platform::Timer& m_debugTimer;
    const platform::Clock& m_clock;
    std::function<void()> m_appendSample;
    std::function<void()> m_plotSample;
};

// Writes what the serial port holds into DEBUG_TEXT1: seconds since midnight, the number of
// characters, the characters. Nothing in the program calls it; it is kept for debugging.
void ShowDebugView(platform::TextBox& debugText, const platform::Clock& clock, const std::string& received);

} // namespace ventrix::link
