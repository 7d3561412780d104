#include "graph/Plotter.h"

#include "fakes/TestRig.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace ventrix::graph {
namespace {

using platform::GraphAxis;

constexpr std::uint8_t kDcVolts = 0;
constexpr std::uint8_t kOhms = 4;
constexpr std::uint8_t kTemperature = 14;

// The plotter on a fake graph, as acquisition has just started (extents to be re-seeded).
struct PlotterTest : ::testing::Test {
    PlotterTest() { rig.state.GraphRestartPending = true; }

    // The current reading: |value| as the count, the sign as the minus annunciator.
    void Read(double value, std::uint8_t function = kDcVolts, const std::string& unit = "V")
    {
        rig.state.FunctionKind = function;
        rig.state.BaseUnit = unit;
        rig.state.CountValue = std::abs(value);
        rig.state.DecimalDivisor = 1;
        rig.state.UnitMultiplier = 1.0;
        rig.state.IsPositive = value >= 0.0;
    }
    void Plot(
        std::initializer_list<double> values, std::uint8_t function = kDcVolts, const std::string& unit = "V")
    {
        for (double value : values) {
            Read(value, function, unit);
            plotter.PlotSample();
        }
    }
    std::pair<double, double> Y() const { return { rig.graph.yAxis.minimum, rig.graph.yAxis.maximum }; }
    std::pair<double, double> X() const { return { rig.graph.xAxis.minimum, rig.graph.xAxis.maximum }; }

    fakes::TestRig rig;
    GraphCursors cursors { rig.state, rig.controls, rig.graph };
    Plotter plotter { rig.state, rig.controls, rig.graph, cursors };
};

TEST_F(PlotterTest, FirstSampleGetsTheFlatBandOfItsPrecision)
{
    rig.state.CountValue = 1234; // 1.234 V as the meter sends it
    rig.state.DecimalDivisor = 1000;
    rig.state.UnitMultiplier = 1.0;
    rig.state.FunctionKind = kDcVolts;
    rig.state.BaseUnit = "V";
    plotter.PlotSample();
    EXPECT_NEAR(rig.graph.yAxis.minimum, 1.134, 1e-12);
    EXPECT_NEAR(rig.graph.yAxis.maximum, 1.334, 1e-12);
    EXPECT_EQ(rig.state.DataMin, 1.234);
    EXPECT_EQ(rig.state.DataMax, 1.234);
    EXPECT_FALSE(rig.state.GraphRestartPending || rig.state.GraphEmpty);
    EXPECT_EQ(rig.graph.points, std::vector<double> { 1.234 });
    EXPECT_EQ(rig.graph.yAxis.caption, "V");
    EXPECT_EQ(rig.graph.xAxis.caption, "Sample No.");
    EXPECT_EQ(rig.state.AutoYMax, rig.graph.yAxis.maximum);

    // Zero on a function without sign: 0..20p, not -10p..10p.
    rig.state.GraphRestartPending = true;
    Plot({ 0.0 }, kOhms, "ohm");
    EXPECT_EQ(Y(), std::make_pair(0.0, 2e-13));
}

TEST_F(PlotterTest, AutomaticScaleKeepsTwentyPerCentOutward)
{
    Plot({ 3.0, -2.0 });
    EXPECT_NEAR(rig.graph.yAxis.minimum, -2.4, 1e-12);
    EXPECT_NEAR(rig.graph.yAxis.maximum, 3.6, 1e-12);

    rig.state.GraphRestartPending = true;
    Plot({ -1.0, -5.0 });
    EXPECT_NEAR(rig.graph.yAxis.minimum, -6.0, 1e-12);
    EXPECT_NEAR(rig.graph.yAxis.maximum, -0.8, 1e-12);
    EXPECT_EQ(std::make_pair(rig.state.AutoYMin, rig.state.AutoYMax), Y());
}

// A manual range is symmetric for a signed reading, REL making any reading signed; with flat data
// the remembered extents test the maximum where the axis tested the minimum.
TEST_F(PlotterTest, ManualRangesAndTheRememberedExtents)
{
    Plot({ 0.0 }, kOhms, "ohm");
    plotter.SelectAmplitudeRange(13); // "4K"
    EXPECT_EQ(Y(), std::make_pair(0.0, 4000.0));
    EXPECT_EQ(rig.controls.AMPLITUDE_COMBO.ToolTip(), "Manual amplitude range");
    rig.state.IsRelative = true;
    Plot({ 0.0 }, kOhms, "ohm");
    EXPECT_EQ(Y(), std::make_pair(-4000.0, 4000.0));
    EXPECT_EQ(rig.state.AutoYMin, -1e-13) << "not 0..20p as the automatic axis would take";
    EXPECT_EQ(rig.state.AutoYMax, 1e-13);

    // Back to AUTO: the remembered extents, X included; the graph's own scaling stays off.
    rig.state.IsRelative = false;
    rig.state.AutoXMin = 3.0;
    rig.state.AutoXMax = 7.0;
    rig.graph.xAxis.autoScale = true;
    plotter.SelectAmplitudeRange(0);
    EXPECT_EQ(Y(), std::make_pair(-1e-13, 1e-13));
    EXPECT_EQ(X(), std::make_pair(3.0, 7.0));
    EXPECT_FALSE(rig.graph.xAxis.autoScale || rig.graph.yAxis.autoScale);

    // After the log was cleared, AUTO shows the empty graph.
    rig.state.GraphEmpty = true;
    plotter.SelectAmplitudeRange(0);
    EXPECT_EQ(Y(), std::make_pair(0.0, 40000000.0));
    EXPECT_EQ(X(), std::make_pair(0.0, 10.0));
    Read(1.0, kDcVolts);
    plotter.SelectAmplitudeRange(0);
    EXPECT_EQ(Y(), std::make_pair(-40000000.0, 40000000.0));
    EXPECT_EQ(rig.controls.AMPLITUDE_COMBO.ToolTip(),
        "Amplitude scale will automatically adjust to fit all samples");
    plotter.SelectAmplitudeRange(12); // "400"; what a cleared log shows then
    rig.graph.ClearData();
    plotter.ShowEmptyGraph();
    EXPECT_EQ(Y(), std::make_pair(-400.0, 400.0));
    EXPECT_EQ(X(), std::make_pair(0.0, 10.0));
    EXPECT_TRUE(rig.graph.xAxis.autoScale);
    EXPECT_GE(rig.graph.redraws, 4);
}

// Each row: what was plotted before, the next sample's function and unit; whether the graph
// restarts and the unit it then plots in.
TEST_F(PlotterTest, RestartsOnAChangeOfFunctionOrTemperatureUnit)
{
    struct Case {
        std::uint8_t plottedFunction;
        const char* plottedUnit;
        std::uint8_t function;
        const char* unit;
        bool restarts;
        const char* plottedAfter;
    };
    const Case cases[] = {
        { 255, "", kTemperature, "°F", true, "°F" }, // nothing plotted yet: not forced to Celsius
        { kDcVolts, "V", kTemperature, "°F", true, "°C" }, // volts to temperature starts in Celsius
        { kTemperature, "°C", kTemperature, "°F", true, "°F" },
        { kTemperature, "°F", kTemperature, "°F", false, "°F" },
        { kDcVolts, "V", kOhms, "ohm", true, "ohm" },
        { kDcVolts, "V", kDcVolts, "V", false, "V" },
        { 255, "", kDcVolts, "V", true, "V" },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.plottedFunction) + " " + c.plottedUnit + " -> " + c.unit);
        fakes::TestRig rig;
        GraphCursors cursors(rig.state, rig.controls, rig.graph);
        Plotter plotter(rig.state, rig.controls, rig.graph, cursors);
        rig.state.PlottedFunctionKind = c.plottedFunction;
        rig.state.PlottedBaseUnit = c.plottedUnit;
        rig.state.SwapPageCount = 3;
        rig.state.PageFill = 417;
        rig.graph.points = { 1.0, 2.0 };
        rig.graph.yAxis.caption = c.plottedUnit;
        rig.state.DataMax = 100.0;
        rig.state.FunctionKind = c.function;
        rig.state.BaseUnit = c.unit;
        rig.state.CountValue = 25;
        plotter.PlotSample();
        EXPECT_EQ(rig.graph.clears, c.restarts ? 1 : 0);
        EXPECT_EQ(rig.graph.points.size(), c.restarts ? 1u : 3u);
        EXPECT_EQ(rig.state.PlottedFunctionKind, c.function);
        EXPECT_EQ(rig.state.PlottedBaseUnit, c.plottedAfter);
        EXPECT_EQ(rig.graph.yAxis.caption, c.plottedAfter);
        EXPECT_EQ(rig.state.GraphStartPage, c.restarts ? 3 : 0);
        EXPECT_EQ(rig.state.GraphStartSlot, c.restarts ? 417 : 1);
        EXPECT_EQ(rig.state.DataMax, c.restarts ? 25.0 : 100.0) << "a restart re-seeds the extents";
    }
}

TEST_F(PlotterTest, OnlyValidFunctionsArePlottedAndSkipIsOneShot)
{
    rig.state.SkipNextPlot = true;
    Plot({ 1.0 });
    EXPECT_FALSE(rig.state.SkipNextPlot);
    Plot({ 1.0 }, 15, "");
    EXPECT_TRUE(rig.graph.points.empty());
    EXPECT_TRUE(rig.state.GraphEmpty);
    Plot({ 1.0 });
    EXPECT_EQ(rig.graph.points.size(), 1u);
}

// With a sample count N the time axis shows 0..N while there are fewer samples, then the last N,
// whatever zoom or pan did in between.
TEST_F(PlotterTest, SampleScaleShowsTheLastSamples)
{
    rig.state.SampleScale = 50;
    plotter.SetUpTimeAxis();
    for (int i = 0; i < 30; ++i)
        Plot({ 1.0 });
    EXPECT_EQ(X(), std::make_pair(0.0, 50.0));
    for (int i = 30; i < 80; ++i)
        Plot({ 1.0 });
    EXPECT_EQ(X(), std::make_pair(29.0, 79.0));

    rig.graph.SetAxisMinimum(GraphAxis::XAxis, 10.0); // a zoom
    rig.graph.SetAxisMaximum(GraphAxis::XAxis, 20.0);
    Plot({ 1.0 });
    EXPECT_EQ(X(), std::make_pair(30.0, 80.0));

    // Another count keeps the left edge; AUTO follows all the data again.
    plotter.SelectSampleScale(1);
    EXPECT_EQ(X(), std::make_pair(30.0, 40.0));
    EXPECT_EQ(rig.controls.SAMPLE_COMBO.ToolTip(), "Manual Time scale");
    plotter.SelectSampleScale(0);
    EXPECT_EQ(X(), std::make_pair(0.0, 80.0));
    EXPECT_TRUE(rig.graph.xAxis.autoScale);
    Plot({ 1.0 });
    EXPECT_EQ(X(), std::make_pair(0.0, 81.0));
}

TEST_F(PlotterTest, ZoomAllDataReturnsBothListsToAutomatic)
{
    auto& c = rig.controls;
    for (const char* item : { "AUTO Amplitude Scale", "4n" })
        c.AMPLITUDE_COMBO.AddItem(item);
    for (const char* item : { "AUTO Sample Scale", "10 samples" })
        c.SAMPLE_COMBO.AddItem(item);
    int amplitudeSelections = 0;
    c.AMPLITUDE_COMBO.SetOnSelect([&] { ++amplitudeSelections; });
    c.AMPLITUDE_COMBO.SetListIndex(1);
    c.SAMPLE_COMBO.SetListIndex(1);
    rig.state.AmplitudeRange = 4e-9;
    rig.state.SampleScale = 10;
    Plot({ 2.0, -1.0, 5.0 });

    plotter.ZoomAllData();
    EXPECT_EQ(c.AMPLITUDE_COMBO.ListIndex() + c.SAMPLE_COMBO.ListIndex(), 0);
    EXPECT_EQ(amplitudeSelections, 2) << "the change of selection ran the list's handler";
    EXPECT_EQ(rig.state.AmplitudeRange + rig.state.SampleScale, 0.0);
    EXPECT_EQ(X(), std::make_pair(0.0, 2.0));
    EXPECT_EQ(Y(), std::make_pair(-1.0, 5.0));
    EXPECT_TRUE(rig.graph.xAxis.autoScale && rig.graph.yAxis.autoScale);
}

TEST_F(PlotterTest, CursorsFollowARestartAndStayInView)
{
    rig.state.GraphMode = 2;
    rig.state.SampleIntervalMs = 1000.0;
    for (int cursor : { 1, 2 })
        rig.graph.SetCursorMode(cursor, 1);
    Plot({ 1.0, 2.0, 3.0, 4.0, 5.0 });
    rig.graph.SetCursorX(1, 4.0);
    rig.graph.SetCursorX(2, 0.0);
    rig.graph.SetAutoScale(GraphAxis::XAxis, false);
    rig.graph.SetAxisMinimum(
        GraphAxis::XAxis, 2.0); // zoomed past cursor 2; the new point scrolls 2..4 to 3..5
    Plot({ 6.0 });
    EXPECT_EQ(rig.graph.CursorX(2), 3.0);
    EXPECT_EQ(rig.controls.X2_VAL_LBL.Caption(), "3s");
    EXPECT_EQ(rig.controls.X1_X2_VAL_LBL.Caption(), "1s");

    Plot({ 1.0 }, kOhms, "ohm"); // a restart puts both in the middle of the view
    EXPECT_EQ(rig.graph.CursorX(1), rig.graph.CursorX(2));
    EXPECT_EQ(rig.controls.Y1_VAL_LBL.Caption(), "1.0ohm");
}

} // namespace
} // namespace ventrix::graph
