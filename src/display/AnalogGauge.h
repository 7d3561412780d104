#pragma once

#include "platform/KnobControl.h"
#include "platform/Timer.h"
#include "state/AppState.h"

namespace ventrix::display {

// The analogue dial: sets the needle's target from each decoded reading and, on every
// ANALOG_TIMER tick, moves the needle toward it and writes scale marks and range to the knob.
class AnalogGauge {
public:
    AnalogGauge(state::AppState& state, platform::KnobControl& knob, platform::Timer& analogTimer);
    void UpdateGaugeTarget();
    void AnimateGauge();

private:
    state::AppState& m_state;
    platform::KnobControl& m_knob;
    platform::Timer& m_timer;
};

} // namespace ventrix::display
