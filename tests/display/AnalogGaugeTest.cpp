#include "display/AnalogGauge.h"

#include "fakes/TestRig.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ventrix::display {
namespace {

class AnalogGaugeTest : public ::testing::Test {
protected:
    AnalogGaugeTest()
    {
        s.AwaitingAbsoluteReading = false;
        s.FunctionKind = 0;
        s.UnitMultiplier = 1.0;
        s.DecimalDivisor = 1;
        rig.analogTimer.SetOnTick([this] { gauge.AnimateGauge(); });
    }
    // A numeric reading, or a word when one is given.
    void Show(double count, bool positive = true, const char* word = nullptr)
    {
        s.HasWord = word != nullptr;
        s.DisplayWord = word ? word : "";
        s.CountValue = count;
        s.IsPositive = positive;
        gauge.UpdateGaugeTarget();
    }
    std::vector<double> Ticks(int count) // the needle's place after each tick
    {
        std::vector<double> places;
        for (int i = 0; i < count; ++i) {
            rig.analogTimer.Fire();
            places.push_back(s.GaugeNeedle);
        }
        return places;
    }

    fakes::TestRig rig;
    state::AppState& s = rig.state;
    fakes::FakeKnob& knob = rig.knob;
    AnalogGauge gauge { rig.state, rig.knob, rig.analogTimer };
};

// The scale marks and axis ends by function, prefix and decimal point, doubled in relative mode;
// volts, amps and temperature have scales of their own on some ranges only. Each row gives the
// upper mark and axis end; the lower ones mirror them.
TEST_F(AnalogGaugeTest, ScaleByFunctionAndMultiplier)
{
    struct Row {
        std::uint8_t functionKind;
        double multiplier;
        std::int16_t divisor;
        bool relative;
        double max, outerMax;
    };
    const Row rows[] = { { 0, 1, 1, false, 1000, 1200 }, { 0, 1e-3, 1, false, 4000, 4400 },
        { 1, 1, 1, false, 750, 900 }, { 1, 1e-3, 10, false, 400, 440 }, { 2, 1, 100, false, 10, 12 },
        { 2, 1e-3, 100, false, 40, 44 }, { 3, 1, 100, false, 10, 12 }, { 3, 1, 1, false, 4000, 4400 },
        { 4, 1e3, 1000, false, 4, 4.4 }, { 4, 1, 1, false, 4000, 4400 }, { 5, 1e-6, 100, false, 40, 44 },
        { 6, 1e3, 10, false, 400, 440 }, { 7, 1, 10, false, 100, 100 }, { 8, 1e-9, 100, false, 40, 44 },
        { 9, 1, 1000, false, 4, 4.4 }, { 13, 1, 100, false, 60, 70 }, { 14, 1, 1, false, 999, 1400 },
        { 14, 1, 10, false, 400, 440 }, { 0, 1, 1, true, 2000, 2400 }, { 7, 1, 1, true, 200, 200 },
        { 14, 1, 1, true, 1998, 2800 } };
    for (const Row& r : rows) {
        SCOPED_TRACE(::testing::Message() << "function " << int(r.functionKind) << " x" << r.multiplier
                                          << " /" << r.divisor << (r.relative ? " relative" : ""));
        s.FunctionKind = r.functionKind;
        s.UnitMultiplier = r.multiplier;
        s.DecimalDivisor = r.divisor;
        s.IsRelative = r.relative;
        gauge.AnimateGauge();
        EXPECT_FLOAT_EQ(knob.PointerValue("Pointer-MAX"), r.max);
        EXPECT_FLOAT_EQ(knob.PointerValue("Pointer-MIN"), -r.max);
        EXPECT_FLOAT_EQ(knob.AxisMaximum(), r.outerMax);
        EXPECT_FLOAT_EQ(knob.AxisMinimum(), -r.outerMax);
        EXPECT_EQ(knob.PointerValue("Pointer-FILLMAX"), 0.0);
        EXPECT_EQ(knob.PointerValue("Pointer-FILLMIN"), 0.0);
    }
}

// Where each reading sends the needle, and whether the dial is shown and animated: a numeric
// reading by its sign, overload past the scale on the side of the sign, dashes to zero; no
// needle for continuity, gain and logic (10 to 12), other words or functions past 14.
TEST_F(AnalogGaugeTest, TargetAndDialByReading)
{
    struct Row {
        std::uint8_t functionKind;
        const char* word; // none: a numeric reading of 1234
        bool positive;
        bool shown; // dial visible and timer running; hidden rows also park the needle
        double target;
    };
    const Row rows[] = { { 0, nullptr, true, true, 1234 }, { 4, nullptr, false, true, -1234 },
        { 10, nullptr, true, false, 0 }, { 11, nullptr, true, false, 0 }, { 12, nullptr, true, false, 0 },
        { 0, " OF ", true, true, 4400 }, { 0, " OF ", false, true, -4400 }, { 0, "----", true, true, 0 },
        { 4, "OPEn", true, false, 0 }, { 15, nullptr, true, false, 0 }, { 255, " OF ", true, false, 0 } };
    for (const Row& r : rows) {
        SCOPED_TRACE(::testing::Message() << "function " << int(r.functionKind) << " "
                                          << (r.word ? r.word : "1234") << (r.positive ? "" : " negative"));
        s.GaugeNeedle = 700;
        knob.SetVisible(!r.shown);
        rig.analogTimer.SetEnabled(!r.shown);
        s.FunctionKind = r.functionKind;
        Show(1234, r.positive, r.word);
        EXPECT_EQ(knob.Visible(), r.shown);
        EXPECT_EQ(rig.analogTimer.Enabled(), r.shown);
        EXPECT_EQ(rig.analogTimer.Interval(), 200);
        EXPECT_EQ(s.GaugeTarget, r.target);
        if (!r.shown || r.target == 0) {
            EXPECT_EQ(s.GaugeNeedle, 0);
        }
    }
}

TEST_F(AnalogGaugeTest, AwaitingAnAbsoluteReadingChangesNothing)
{
    s.GaugeNeedle = 250;
    s.GaugeTarget = 300;
    knob.SetVisible(false);
    s.AwaitingAbsoluteReading = true;
    Show(1234);
    s.FunctionKind = 10;
    Show(1234);
    EXPECT_EQ(s.GaugeNeedle, 250);
    EXPECT_EQ(s.GaugeTarget, 300);
    EXPECT_FALSE(knob.Visible());
    EXPECT_EQ(rig.analogTimer.restarts, 0);
}

// At most 500 counts a tick, written in scale units.
TEST_F(AnalogGaugeTest, NeedleSteps)
{
    Show(499);
    EXPECT_EQ(Ticks(1), (std::vector<double> { 499 }));
    Show(1699);
    EXPECT_EQ(Ticks(4), (std::vector<double> { 999, 1499, 1699, 1699 }));
    Show(499);
    EXPECT_EQ(Ticks(3), (std::vector<double> { 1199, 699, 499 }));
    Show(0);
    EXPECT_EQ(Ticks(1), (std::vector<double> { 0 }));
    Show(1200, false);
    EXPECT_EQ(Ticks(3), (std::vector<double> { -500, -1000, -1200 }));

    s.DecimalDivisor = 100;
    s.IsRelative = true; // relative overload: twice as far
    Show(0, false, " OF ");
    EXPECT_EQ(s.GaugeTarget, -8800);
    const std::vector<double> places = Ticks(16);
    EXPECT_EQ(places[14], -8700);
    EXPECT_EQ(places[15], -8800);
    EXPECT_DOUBLE_EQ(knob.PointerValue("Pointer-1"), -88.0);
}

TEST_F(AnalogGaugeTest, OnlyChangedValuesAreWritten)
{
    Show(1200);
    rig.analogTimer.Fire();
    // First tick: both marks, the needle and both range ends; the fill pointers already read 0.
    EXPECT_EQ(knob.writes, 5);
    Ticks(2);
    EXPECT_EQ(knob.writes, 7) << "only the needle moved";
    Ticks(5);
    EXPECT_EQ(knob.writes, 7) << "no writes once the needle has arrived";

    s.IsRelative = true; // doubles all four scale values, the needle stays
    rig.analogTimer.Fire();
    EXPECT_EQ(knob.writes, 11);
    // Something else wrote the fill pointers: the next tick puts them back to 0.
    knob.SetPointerValue("Pointer-FILLMAX", 3);
    knob.SetPointerValue("Pointer-FILLMIN", -3);
    rig.analogTimer.Fire();
    EXPECT_EQ(knob.writes, 15);
    EXPECT_EQ(knob.PointerValue("Pointer-FILLMAX"), 0);
    EXPECT_EQ(knob.PointerValue("Pointer-FILLMIN"), 0);
}

} // namespace
} // namespace ventrix::display
