#include "display/AnalogGauge.h"

namespace ventrix::display {

// Placeholder until the gauge lands.
AnalogGauge::AnalogGauge(app::AppState& state, platform::KnobControl& knob, platform::Timer& analogTimer)
    : m_state(state)
    , m_knob(knob)
    , m_timer(analogTimer)
{
}

void AnalogGauge::UpdateGaugeTarget() { }
void AnalogGauge::AnimateGauge() { }

} // namespace ventrix::display
