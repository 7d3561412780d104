#pragma once

#include "app/AppState.h"
#include "platform/MainControls.h"
#include "platform/Services.h"

#include <string>

namespace ventrix::display {
class VirtualLcd;
class AnalogGauge;
}

namespace ventrix::link {

// The serial connection to the meter: starts and stops acquisition, takes the bytes of each
// receive event, finds and accepts a frame in them, decodes it and refreshes the LCD and the
// gauge, and supervises the link with UNLINK_TIMER. Does not sample or plot.
class SerialLink {
public:
    SerialLink(app::AppState& state, platform::MainControls& controls, platform::Services& services,
        display::VirtualLcd& lcd, display::AnalogGauge& gauge);

    void StartAcquisition();
    void StopAcquisition();
    void OnComm();                               // receive event of MSComm1
    void AssembleFrame(const std::string& received);
    void UnlinkTimerTick();                      // 15 s without a receive event
    void RequestExtremaReset();
    void ResetFrameState();                      // FrameResetMarker, FrameData, FrameChecksum

private:
    app::AppState& m_state;
    platform::MainControls& m_controls;
    platform::Services& m_services;
    display::VirtualLcd& m_lcd;
    display::AnalogGauge& m_gauge;
};

} // namespace ventrix::link
