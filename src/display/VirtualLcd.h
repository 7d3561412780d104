#pragma once

#include "platform/MainControls.h"
#include "state/AppState.h"

namespace ventrix::display {

// Copies the current reading onto the LCD labels of the main window: digits or word, minus
// sign, unit text and the annunciators. Keeps no state; does nothing while an absolute reading
// is awaited.
class VirtualLcd {
public:
    VirtualLcd(const state::AppState& state, platform::MainControls& controls);
    void RefreshVirtualLcd();

private:
    const state::AppState& m_state;
    platform::MainControls& m_controls;
};

} // namespace ventrix::display
