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

    void Reading(double count, bool positive = true)
    {
        s.HasWord = false;
        s.CountValue = count;
        s.IsPositive = positive;
        gauge.UpdateGaugeTarget();
    }

    void Word(const std::string& word, bool positive = true)
    {
        s.HasWord = true;
        s.DisplayWord = word;
        s.IsPositive = positive;
        gauge.UpdateGaugeTarget();
    }

    // The needle's place after each of the given number of ticks.
    std::vector<double> Ticks(int count)
    {
        std::vector<double> places;
        for (int i = 0; i < count; ++i) {
            rig.analogTimer.Fire();
            places.push_back(s.GaugeNeedle);
        }
        return places;
    }

    fakes::TestRig rig;
    app::AppState& s = rig.state;
    fakes::FakeKnob& knob = rig.knob;
    AnalogGauge gauge { rig.state, rig.knob, rig.analogTimer };
};

// The scale marks and axis ends by function, prefix and decimal point, doubled in relative
// mode. Columns: function, multiplier, divisor, relative, then max, min, outer max, outer min.
struct ScaleCase {
    const char* what;
    std::uint8_t functionKind;
    double multiplier;
    std::int16_t divisor;
    bool relative;
    double max;
    double min;
    double outerMax;
    double outerMin;
};

class AnalogGaugeScaleTest : public AnalogGaugeTest, public ::testing::WithParamInterface<ScaleCase> { };

TEST_P(AnalogGaugeScaleTest, WritesMarksAndRange)
{
    const ScaleCase& sc = GetParam();
    s.FunctionKind = sc.functionKind;
    s.UnitMultiplier = sc.multiplier;
    s.DecimalDivisor = sc.divisor;
    s.IsRelative = sc.relative;
    gauge.AnimateGauge();
    EXPECT_FLOAT_EQ(knob.PointerValue("Pointer-MAX"), sc.max) << sc.what;
    EXPECT_FLOAT_EQ(knob.PointerValue("Pointer-MIN"), sc.min) << sc.what;
    EXPECT_FLOAT_EQ(knob.AxisMaximum(), sc.outerMax) << sc.what;
    EXPECT_FLOAT_EQ(knob.AxisMinimum(), sc.outerMin) << sc.what;
    EXPECT_EQ(knob.PointerValue("Pointer-FILLMAX"), 0.0) << sc.what;
    EXPECT_EQ(knob.PointerValue("Pointer-FILLMIN"), 0.0) << sc.what;
}

INSTANTIATE_TEST_SUITE_P(Table, AnalogGaugeScaleTest,
    ::testing::Values(ScaleCase { "V in volts", 0, 1, 1, false, 1000, -1000, 1200, -1200 },
        ScaleCase { "V in millivolts", 0, 1e-3, 1, false, 4000, -4000, 4400, -4400 },
        ScaleCase { "V with a point", 0, 1, 100, false, 40, -40, 44, -44 },
        ScaleCase { "V AC in volts", 1, 1, 1, false, 750, -750, 900, -900 },
        ScaleCase { "V AC in millivolts", 1, 1e-3, 10, false, 400, -400, 440, -440 },
        ScaleCase { "A on the 10 A range", 2, 1, 100, false, 10, -10, 12, -12 },
        ScaleCase { "A in milliamps", 2, 1e-3, 100, false, 40, -40, 44, -44 },
        ScaleCase { "A AC on the 10 A range", 3, 1, 100, false, 10, -10, 12, -12 },
        ScaleCase { "A AC in volts' r", 3, 1, 1, false, 4000, -4000, 4400, -4400 },
        ScaleCase { "ohm", 4, 1e3, 1000, false, 4, -4, 4.4, -4.4 },
        ScaleCase { "ohm that would be 1 for V", 4, 1, 1, false, 4000, -4000, 4400, -4400 },
        ScaleCase { "F", 5, 1e-6, 100, false, 40, -40, 44, -44 },
        ScaleCase { "Hz", 6, 1e3, 10, false, 400, -400, 440, -440 },
        ScaleCase { "percent", 7, 1, 10, false, 100, -100, 100, -100 },
        ScaleCase { "S", 8, 1e-9, 100, false, 40, -40, 44, -44 },
        ScaleCase { "diode", 9, 1, 1000, false, 4, -4, 4.4, -4.4 },
        ScaleCase { "dBm", 13, 1, 100, false, 60, -60, 70, -70 },
        ScaleCase { "temperature whole degrees", 14, 1, 1, false, 999, -999, 1400, -1400 },
        ScaleCase { "temperature tenths", 14, 1, 10, false, 400, -400, 440, -440 },
        ScaleCase { "relative V doubles", 0, 1, 1, true, 2000, -2000, 2400, -2400 },
        ScaleCase { "relative generic doubles", 4, 1e3, 100, true, 80, -80, 88, -88 },
        ScaleCase { "relative percent doubles", 7, 1, 1, true, 200, -200, 200, -200 },
        ScaleCase { "relative temperature doubles", 14, 1, 1, true, 1998, -1998, 2800, -2800 }));

TEST_F(AnalogGaugeTest, NumericReadingSetsTheSignedTargetAndStartsTheTimer)
{
    knob.SetVisible(false);
    Reading(1234, false);
    EXPECT_EQ(s.GaugeTarget, -1234);
    EXPECT_TRUE(knob.Visible());
    EXPECT_TRUE(rig.analogTimer.Enabled());
    EXPECT_EQ(rig.analogTimer.Interval(), 200);
    Reading(1234, true);
    EXPECT_EQ(s.GaugeTarget, 1234);
}

TEST_F(AnalogGaugeTest, FunctionsWithoutANeedleHideTheDialAndParkIt)
{
    for (std::uint8_t kind : { 10, 11, 12 }) {
        s.GaugeNeedle = 700;
        s.FunctionKind = kind;
        knob.SetVisible(true);
        rig.analogTimer.SetEnabled(true);
        Reading(1234);
        EXPECT_FALSE(knob.Visible()) << int(kind);
        EXPECT_EQ(s.GaugeNeedle, 0) << int(kind);
        EXPECT_EQ(s.GaugeTarget, 0) << int(kind);
        EXPECT_FALSE(rig.analogTimer.Enabled()) << int(kind);
        EXPECT_EQ(rig.analogTimer.Interval(), 200) << int(kind);
    }
}

TEST_F(AnalogGaugeTest, OverloadPointsPastTheScaleOnTheSideOfTheSign)
{
    Word(" OF ", true);
    EXPECT_EQ(s.GaugeTarget, 4400);
    Word(" OF ", false);
    EXPECT_EQ(s.GaugeTarget, -4400);
    EXPECT_TRUE(knob.Visible());
    EXPECT_TRUE(rig.analogTimer.Enabled());
}

TEST_F(AnalogGaugeTest, RelativeOverloadDoublesTargetAndScale)
{
    s.IsRelative = true;
    Word(" OF ", false);
    EXPECT_EQ(s.GaugeTarget, -8800);
    const std::vector<double> places = Ticks(18);
    EXPECT_EQ(places[16], -8500);
    EXPECT_EQ(places[17], -8800);
    EXPECT_EQ(knob.PointerValue("Pointer-1"), -8800);
    EXPECT_EQ(knob.AxisMinimum(), -2400);
    EXPECT_EQ(knob.AxisMaximum(), 2400);
}

TEST_F(AnalogGaugeTest, DashesParkTheNeedleWithTheDialShown)
{
    s.GaugeNeedle = 900;
    knob.SetVisible(false);
    Word("----");
    EXPECT_TRUE(knob.Visible());
    EXPECT_TRUE(rig.analogTimer.Enabled());
    EXPECT_EQ(s.GaugeNeedle, 0);
    EXPECT_EQ(s.GaugeTarget, 0);
}

TEST_F(AnalogGaugeTest, OtherWordsAndUnknownFunctionsHideTheDial)
{
    const auto expectHidden = [&](const char* what) {
        EXPECT_FALSE(knob.Visible()) << what;
        EXPECT_FALSE(rig.analogTimer.Enabled()) << what;
        EXPECT_EQ(s.GaugeNeedle, 0) << what;
        EXPECT_EQ(s.GaugeTarget, 0) << what;
    };
    s.FunctionKind = 4;
    s.GaugeNeedle = 300;
    Word("OPEn");
    expectHidden("open circuit");

    Reading(100);
    s.FunctionKind = 15;
    Reading(100);
    expectHidden("numeric reading of function 15");

    Reading(100);
    s.FunctionKind = 255;
    Word(" OF ");
    expectHidden("overload of an unknown function");
}

TEST_F(AnalogGaugeTest, AwaitingAnAbsoluteReadingChangesNothing)
{
    s.GaugeNeedle = 250;
    s.GaugeTarget = 300;
    knob.SetVisible(false);
    s.AwaitingAbsoluteReading = true;
    Reading(1234);
    s.FunctionKind = 10;
    Reading(1234);
    EXPECT_EQ(s.GaugeNeedle, 250);
    EXPECT_EQ(s.GaugeTarget, 300);
    EXPECT_FALSE(knob.Visible());
    EXPECT_EQ(rig.analogTimer.restarts, 0);
}

TEST_F(AnalogGaugeTest, NeedleMovesAtMostFiveHundredCountsATick)
{
    Reading(499);
    EXPECT_EQ(Ticks(1), (std::vector<double> { 499 }));

    Reading(1699);
    EXPECT_EQ(Ticks(4), (std::vector<double> { 999, 1499, 1699, 1699 }));

    Reading(499);
    EXPECT_EQ(Ticks(3), (std::vector<double> { 1199, 699, 499 }));

    Reading(0);
    EXPECT_EQ(Ticks(1), (std::vector<double> { 0 }));

    Reading(1200, false);
    EXPECT_EQ(Ticks(3), (std::vector<double> { -500, -1000, -1200 }));

    Reading(4000, true);
    const std::vector<double> swing = Ticks(11);
    EXPECT_EQ(swing[9], 3800);
    EXPECT_EQ(swing[10], 4000) << "a full swing of 4000 counts from the far side takes 11 ticks";
}

TEST_F(AnalogGaugeTest, NeedleIsWrittenInScaleUnits)
{
    s.DecimalDivisor = 100;
    Reading(1234, false);
    Ticks(3);
    EXPECT_DOUBLE_EQ(knob.PointerValue("Pointer-1"), -12.34);
}

TEST_F(AnalogGaugeTest, OnlyChangedValuesAreWritten)
{
    Reading(1200);
    rig.analogTimer.Fire();
    // First tick: both marks, the needle and both range ends; the fill pointers already read 0.
    EXPECT_EQ(knob.writes, 5);

    rig.analogTimer.Fire();
    EXPECT_EQ(knob.writes, 6) << "only the needle moved";
    rig.analogTimer.Fire();
    EXPECT_EQ(knob.writes, 7);

    const int arrived = knob.writes;
    Ticks(5);
    EXPECT_EQ(knob.writes, arrived) << "no writes once the needle has arrived";

    // Something else wrote the fill pointers: the next tick puts them back to 0.
    knob.SetPointerValue("Pointer-FILLMAX", 3);
    knob.SetPointerValue("Pointer-FILLMIN", -3);
    const int before = knob.writes;
    rig.analogTimer.Fire();
    EXPECT_EQ(knob.writes, before + 2);
    EXPECT_EQ(knob.PointerValue("Pointer-FILLMAX"), 0);
    EXPECT_EQ(knob.PointerValue("Pointer-FILLMIN"), 0);
}

TEST_F(AnalogGaugeTest, ChangingTheRangeWritesOnlyTheScale)
{
    Reading(300);
    Ticks(2);
    const int before = knob.writes;
    s.IsRelative = true; // doubles all four scale values, the needle stays
    rig.analogTimer.Fire();
    EXPECT_EQ(knob.writes, before + 4);
}

} // namespace
} // namespace ventrix::display
