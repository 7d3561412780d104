#include "link/SerialLink.h"

namespace ventrix::link {

// Placeholder until the link lands.
SerialLink::SerialLink(app::AppState& state, platform::MainControls& controls, platform::Services& services,
    display::VirtualLcd& lcd, display::AnalogGauge& gauge)
    : m_state(state)
    , m_controls(controls)
    , m_services(services)
    , m_lcd(lcd)
    , m_gauge(gauge)
{
}

void SerialLink::StartAcquisition() { }
void SerialLink::StopAcquisition() { }
void SerialLink::OnComm() { }
void SerialLink::AssembleFrame(const std::string&) { }
void SerialLink::UnlinkTimerTick() { }
void SerialLink::RequestExtremaReset() { m_state.GraphRestartPending = true; }
void SerialLink::ResetFrameState() { }

} // namespace ventrix::link
