#include "display/VirtualLcd.h"

namespace ventrix::display {

// Placeholder until the LCD lands.
VirtualLcd::VirtualLcd(const app::AppState& state, platform::MainControls& controls)
    : m_state(state)
    , m_controls(controls)
{
}

void VirtualLcd::RefreshVirtualLcd() { }

} // namespace ventrix::display
