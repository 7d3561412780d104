#include "display/AnalogGauge.h"

namespace ventrix::display {

namespace {

constexpr int kTickMs = 200;
constexpr double kStepCounts = 500.0; // the farthest the needle moves in one tick
constexpr double kOverloadCounts = 4400.0;

// The marks of the normal scale and the ends of the dial's axis, in scale units.
struct GaugeScale {
    float max;
    float min;
    float outerMax;
    float outerMin;
};

} // namespace

AnalogGauge::AnalogGauge(state::AppState& state, platform::KnobControl& knob, platform::Timer& analogTimer)
    : m_state(state)
    , m_knob(knob)
    , m_timer(analogTimer)
{
}

void AnalogGauge::UpdateGaugeTarget()
{
    state::AppState& s = m_state;
    if (s.AwaitingAbsoluteReading)
        return;

    const auto park = [&] {
        s.GaugeNeedle = 0.0;
        s.GaugeTarget = 0.0;
    };
    const auto run = [&] {
        m_timer.SetInterval(kTickMs);
        m_timer.SetEnabled(true);
        m_knob.SetVisible(true);
    };
    const auto hide = [&] {
        m_knob.SetVisible(false);
        park();
        m_timer.SetEnabled(false);
        m_timer.SetInterval(kTickMs);
    };

    const int kind = s.FunctionKind;
    if (kind == 10 || kind == 11 || kind == 12) {
        // Continuity, transistor gain and logic have no needle.
        hide();
    } else if (kind < 15 && !s.HasWord) {
        run();
        s.GaugeTarget = s.IsPositive ? s.CountValue : -s.CountValue;
    } else if (s.DisplayWord == " OF " && kind <= 14) {
        // Overload: past the normal scale mark, on the side of the sign.
        run();
        s.GaugeTarget = s.IsPositive ? kOverloadCounts : -kOverloadCounts;
        if (s.IsRelative)
            s.GaugeTarget *= 2.0;
    } else if (s.DisplayWord == "----" && kind <= 14) {
        run();
        park();
    } else {
        hide();
    }
}

void AnalogGauge::AnimateGauge()
{
    state::AppState& s = m_state;

    // Divisor 0 never comes from the decoder; treat it as 1 rather than divide by it.
    const double divisor = s.DecimalDivisor == 0 ? 1.0 : static_cast<double>(s.DecimalDivisor);
    const double r = s.UnitMultiplier / divisor;
    const GaugeScale generic { static_cast<float>(4000.0 / divisor), static_cast<float>(-4000.0 / divisor),
        static_cast<float>(4400.0 / divisor), static_cast<float>(-4400.0 / divisor) };

    GaugeScale scale = generic;
    switch (s.FunctionKind) {
    case 0:
        if (r == 1.0)
            scale = { 1000, -1000, 1200, -1200 };
        break;
    case 1:
        if (r == 1.0)
            scale = { 750, -750, 900, -900 };
        break;
    case 2:
    case 3:
        if (r == 0.01)
            scale = { 10, -10, 12, -12 };
        break;
    case 7:
        scale = { 100, -100, 100, -100 };
        break;
    case 13:
        scale = { 60, -60, 70, -70 };
        break;
    case 14:
        if (divisor * s.UnitMultiplier == 1.0)
            scale = { 999, -999, 1400, -1400 };
        break;
    default:
        break;
    }

    if (s.IsRelative) {
        scale.max *= 2;
        scale.min *= 2;
        scale.outerMax *= 2;
        scale.outerMin *= 2;
    }

    if (s.GaugeTarget < s.GaugeNeedle) {
        if (s.GaugeNeedle - s.GaugeTarget <= kStepCounts)
            s.GaugeNeedle = s.GaugeTarget;
        else
            s.GaugeNeedle -= kStepCounts;
    } else {
        if (s.GaugeTarget - s.GaugeNeedle <= kStepCounts)
            s.GaugeNeedle = s.GaugeTarget;
        else
            s.GaugeNeedle += kStepCounts;
    }

    // Every write repaints the dial, so only values that changed are written.
    const auto writePointer = [&](const char* name, double value) {
        if (m_knob.PointerValue(name) != value)
            m_knob.SetPointerValue(name, value);
    };
    writePointer("Pointer-MAX", scale.max);
    writePointer("Pointer-MIN", scale.min);
    writePointer("Pointer-FILLMAX", 0.0);
    writePointer("Pointer-FILLMIN", 0.0);
    writePointer("Pointer-1", s.GaugeNeedle / divisor);
    if (m_knob.AxisMinimum() != static_cast<double>(scale.outerMin))
        m_knob.SetAxisMinimum(scale.outerMin);
    if (m_knob.AxisMaximum() != static_cast<double>(scale.outerMax))
        m_knob.SetAxisMaximum(scale.outerMax);
}

} // namespace ventrix::display
