#pragma once

#include "platform/MainControls.h"
#include "platform/Services.h"
#include "state/AppState.h"

#include <functional>
#include <string>

namespace ventrix::display {
class VirtualLcd;
class AnalogGauge;
} // namespace ventrix::display

namespace ventrix::link {

// The serial connection to the meter: starts and stops acquisition, takes the bytes of each
// receive event, finds and accepts a frame in them, decodes it and refreshes the LCD and the
// gauge, and supervises the link with UNLINK_TIMER. Does not sample or plot, and does not wire
// itself: the form connects the receive event, the timer tick and the commands to it.
class SerialLink {
public:
    // What happens when a frame in relative mode arrives while an absolute reading is awaited.
    // Left empty, the link stops acquisition and warns the user; a replay records it instead.
    using RefusalHandler = std::function<void()>;

    SerialLink(state::AppState& state, platform::MainControls& controls, platform::Services& services,
        display::VirtualLcd& lcd, display::AnalogGauge& gauge, RefusalHandler onRefusal = {});

    // Called by StartAcquisition once the plot is cleared, to set up the graph's time axis.
    void SetTimeAxisSetUp(std::function<void()> setUp) { m_setUpTimeAxis = std::move(setUp); }

    void StartAcquisition();
    void StopAcquisition();
    void OnComm(); // receive event of MSComm1
    void AssembleFrame(const std::string& received);
    void UnlinkTimerTick(); // 15 s without a receive event
    void RequestExtremaReset();
    void ResetFrameState(); // FrameResetMarker, FrameData, FrameChecksum

    // 0-based offset, within the bytes of the last receive event or AssembleFrame call, of the
    // frame accepted there; -1 when none was.
    int AcceptedOffset() const { return m_acceptedOffset; }

    static constexpr int kFrameLength = 9;
    static constexpr int kUnlinkIntervalMs = 15000;
    // UNLINK_TIMER back to 15000 ms and disabled, ANALOG_TIMER and SAMPLE_TIMER disabled: what
    // every way out of acquiring (and the program's end) does to the timers.
    void StopTimers();

    void SetCommands(bool acquiring); // IsAcquiring with the start and stop buttons and menus
    void SetOptionMenus(bool enabled); // COM and RATE

private:
    void RefuseRelativeStart();
    void RestartSupervision(); // UNLINK_TIMER counts 15 s from now

    state::AppState& m_state;
    platform::MainControls& m_controls;
    platform::Services& m_services;
    display::VirtualLcd& m_lcd;
    display::AnalogGauge& m_gauge;
    RefusalHandler m_onRefusal;
    std::function<void()> m_setUpTimeAxis;
    int m_acceptedOffset = -1;
};

} // namespace ventrix::link
