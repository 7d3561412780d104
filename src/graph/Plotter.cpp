#include "graph/Plotter.h"

#include "graph/AmplitudeScale.h"

#include <cmath>
#include <cstdlib>

namespace ventrix::graph {

namespace {
using platform::GraphAxis;

constexpr std::uint8_t kNoFunction = 15; // function codes from here on are not plotted
constexpr std::uint8_t kDcVolts = 0;
constexpr std::uint8_t kTemperature = 14;
constexpr int kCursorMode = 2;
constexpr const char* kSampleCaption = "Sample No.";
constexpr const char* kAutoAmplitudeTip = "Amplitude scale will automatically adjust to fit all samples";
constexpr const char* kManualAmplitudeTip = "Manual amplitude range";
constexpr const char* kAutoSampleTip = "Time scale will automatically adjust to fit all samples";
constexpr const char* kManualSampleTip = "Manual Time scale";

// A number taken as a 32-bit integer rounds to the nearest whole number, halves to even.
double WholeNumber(double value)
{
    return std::nearbyint(value);
}
} // namespace

Plotter::Plotter(state::AppState& state, platform::MainControls& controls, platform::GraphControl& graph,
    GraphCursors& cursors)
    : m_state(state)
    , m_controls(controls)
    , m_graph(graph)
    , m_cursors(cursors)
{
}

void Plotter::PlotSample()
{
    state::AppState& s = m_state;
    if (s.SkipNextPlot) {
        s.SkipNextPlot = false;
        return;
    }
    if (s.FunctionKind >= kNoFunction)
        return;

    const bool temperatureUnitSwitch = s.BaseUnit != s.PlottedBaseUnit && s.FunctionKind == kTemperature;
    if (s.BaseUnit != s.PlottedBaseUnit && !s.BaseUnit.empty()) {
        s.PlottedBaseUnit = s.BaseUnit;
        m_graph.SetAxisCaption(GraphAxis::YAxis1, s.BaseUnit);
    }
    if (s.FunctionKind != s.PlottedFunctionKind || temperatureUnitSwitch)
        RestartGraph();
    KeepSampleSpan();

    const double value = PlottedValue(s);
    if (s.GraphRestartPending) {
        s.DataMax = value;
        s.DataMin = value;
        s.GraphRestartPending = false;
    } else if (value > s.DataMax) {
        s.DataMax = value;
    } else if (value < s.DataMin) {
        s.DataMin = value;
    }
    const double precision = PrecisionBand(std::abs(value));
    ApplyAmplitudeScale(precision, value, s.DataMax - s.DataMin <= precision);

    s.GraphEmpty = false;
    m_graph.AppendPoint(value);
    if (s.GraphMode == kCursorMode) {
        m_cursors.ClampCursors();
        m_cursors.RefreshAfterNewPoint();
    }
}

void Plotter::RestartGraph()
{
    state::AppState& s = m_state;
    // A switch from DC volts to temperature always starts in Celsius.
    if (s.PlottedFunctionKind == kDcVolts && s.FunctionKind == kTemperature)
        s.BaseUnit = "°C";
    s.PlottedFunctionKind = s.FunctionKind;
    s.PlottedBaseUnit = s.BaseUnit;

    m_graph.ClearData();
    s.GraphStartPage = s.SwapPageCount;
    s.GraphStartSlot = s.PageFill;

    m_graph.SetAxisCaption(GraphAxis::YAxis1, s.BaseUnit);
    m_graph.SetAxisCaption(GraphAxis::XAxis, kSampleCaption);
    m_graph.SetAxisMinimum(GraphAxis::XAxis, 0.0);
    s.GraphRestartPending = true; // as RequestExtremaReset does
    if (s.SampleScale == 0)
        m_graph.SetAutoScale(GraphAxis::XAxis, true);
    if (s.GraphMode == kCursorMode)
        m_cursors.CenterCursors();
}

void Plotter::KeepSampleSpan()
{
    // With a sample count N the view shows the last N sample numbers, or 0..N while there are
    // fewer; nothing changes while the span is already N.
    const double n = m_state.SampleScale;
    if (n == 0.0 || m_graph.AxisMaximum(GraphAxis::XAxis) - m_graph.AxisMinimum(GraphAxis::XAxis) == n)
        return;
    m_graph.AutoScaleNow(GraphAxis::XAxis);
    const double maximum = m_graph.AxisMaximum(GraphAxis::XAxis);
    if (maximum - n < 0.0) {
        m_graph.SetAxisMinimum(GraphAxis::XAxis, 0.0);
        m_graph.SetAxisMaximum(GraphAxis::XAxis, n);
    } else {
        m_graph.SetAxisMinimum(GraphAxis::XAxis, WholeNumber(maximum) - n);
    }
}

void Plotter::ApplyAmplitudeScale(double precision, double value, bool spanIsTiny)
{
    state::AppState& s = m_state;
    const double range = s.AmplitudeRange;
    const bool signedReading = IsSignedReading(s);
    const double flatMaximum = value + 10.0 * precision;
    const double flatMinimum = value - 10.0 * precision;
    const double unsignedFlatMaximum = value + 20.0 * precision;

    if (range != 0.0) {
        m_graph.SetAxisMaximum(GraphAxis::YAxis1, range);
        m_graph.SetAxisMinimum(GraphAxis::YAxis1, signedReading ? -range : 0.0);
    } else if (!spanIsTiny) {
        m_graph.SetAxisMaximum(GraphAxis::YAxis1, MarginMaximum(s.DataMax));
        m_graph.SetAxisMinimum(GraphAxis::YAxis1, MarginMinimum(s.DataMin));
    } else {
        m_graph.SetAxisMaximum(GraphAxis::YAxis1, flatMaximum);
        m_graph.SetAxisMinimum(GraphAxis::YAxis1, flatMinimum);
        if (!signedReading && m_graph.AxisMinimum(GraphAxis::YAxis1) < 0.0) {
            m_graph.SetAxisMaximum(GraphAxis::YAxis1, unsignedFlatMaximum);
            m_graph.SetAxisMinimum(GraphAxis::YAxis1, 0.0);
        }
    }

    if (range == 0.0) {
        s.AutoYMin = m_graph.AxisMinimum(GraphAxis::YAxis1);
        s.AutoYMax = m_graph.AxisMaximum(GraphAxis::YAxis1);
    } else if (!spanIsTiny) {
        s.AutoYMax = MarginMaximum(s.DataMax);
        s.AutoYMin = MarginMinimum(s.DataMin);
    } else {
        // Unlike the axis above, this tests the maximum: kept as it is.
        s.AutoYMax = flatMaximum;
        s.AutoYMin = flatMinimum;
        if (!signedReading && s.AutoYMax < 0.0) {
            s.AutoYMax = unsignedFlatMaximum;
            s.AutoYMin = 0.0;
        }
    }
    s.AutoXMin = m_graph.AxisMinimum(GraphAxis::XAxis);
    s.AutoXMax = m_graph.AxisMaximum(GraphAxis::XAxis);
}

void Plotter::SelectAmplitudeRange(int index)
{
    if (index < 0 || index >= static_cast<int>(kAmplitudeRanges.size()))
        return;
    state::AppState& s = m_state;
    s.AmplitudeRange = kAmplitudeRanges[static_cast<std::size_t>(index)];
    m_controls.AMPLITUDE_COMBO.SetToolTip(s.AmplitudeRange == 0.0 ? kAutoAmplitudeTip : kManualAmplitudeTip);
    const bool signedReading = IsSignedReading(s);

    if (s.AmplitudeRange != 0.0) {
        m_graph.SetAxisMinimum(GraphAxis::YAxis1, signedReading ? -s.AmplitudeRange : 0.0);
        m_graph.SetAxisMaximum(GraphAxis::YAxis1, s.AmplitudeRange);
    } else if (s.GraphEmpty) {
        m_graph.SetAxisMinimum(GraphAxis::YAxis1, signedReading ? -kEmptyGraphAmplitude : 0.0);
        m_graph.SetAxisMaximum(GraphAxis::YAxis1, kEmptyGraphAmplitude);
        m_graph.SetAxisMinimum(GraphAxis::XAxis, 0.0);
        m_graph.SetAxisMaximum(GraphAxis::XAxis, kEmptyGraphSamples);
    } else {
        // Back to the remembered automatic extents; the graph's own scaling is not started.
        m_graph.SetAxisMinimum(GraphAxis::XAxis, s.AutoXMin);
        m_graph.SetAxisMaximum(GraphAxis::XAxis, s.AutoXMax);
        m_graph.SetAxisMinimum(GraphAxis::YAxis1, s.AutoYMin);
        m_graph.SetAxisMaximum(GraphAxis::YAxis1, s.AutoYMax);
    }
    m_graph.Redraw();
}

void Plotter::SelectSampleScale(int index)
{
    if (index < 0 || index >= static_cast<int>(kSampleScales.size()))
        return;
    state::AppState& s = m_state;
    s.SampleScale = kSampleScales[static_cast<std::size_t>(index)];
    m_controls.SAMPLE_COMBO.SetToolTip(s.SampleScale == 0 ? kAutoSampleTip : kManualSampleTip);

    if (s.SampleScale != 0) {
        // The view keeps its left edge and takes the new width.
        const double left = WholeNumber(m_graph.AxisMinimum(GraphAxis::XAxis));
        m_graph.SetAxisMaximum(GraphAxis::XAxis, left + s.SampleScale);
        m_graph.SetAxisMinimum(GraphAxis::XAxis, left);
    } else {
        m_graph.SetAutoScale(GraphAxis::XAxis, true);
        m_graph.AutoScaleNow(GraphAxis::XAxis);
    }
    if (s.GraphMode == kCursorMode)
        m_cursors.ClampCursors();
}

void Plotter::ZoomAllData()
{
    state::AppState& s = m_state;
    s.AmplitudeRange = 0.0;
    m_controls.AMPLITUDE_COMBO.SetListIndex(0);
    m_controls.AMPLITUDE_COMBO.SetToolTip(kAutoAmplitudeTip);
    m_graph.SetAutoScale(GraphAxis::YAxis1, true);

    s.SampleScale = 0;
    m_controls.SAMPLE_COMBO.SetListIndex(0);
    m_controls.SAMPLE_COMBO.SetToolTip(kAutoSampleTip);
    m_graph.SetAutoScale(GraphAxis::XAxis, true);

    m_graph.AutoScaleNow(GraphAxis::XAxis);
    m_graph.AutoScaleNow(GraphAxis::YAxis1);
}

void Plotter::SetUpTimeAxis()
{
    if (m_state.SampleScale == 0)
        return;
    m_graph.SetAxisMinimum(GraphAxis::XAxis, 0.0);
    m_graph.SetAxisMaximum(GraphAxis::XAxis, m_state.SampleScale);
}

void Plotter::ShowEmptyGraph()
{
    const state::AppState& s = m_state;
    const bool signedReading = IsSignedReading(s);
    const double top = s.AmplitudeRange != 0.0 ? s.AmplitudeRange : kEmptyGraphAmplitude;
    m_graph.SetAxisMinimum(GraphAxis::YAxis1, signedReading ? -top : 0.0);
    m_graph.SetAxisMaximum(GraphAxis::YAxis1, top);
    if (s.SampleScale != 0) {
        m_graph.SetAxisMinimum(GraphAxis::XAxis, 0.0);
        m_graph.SetAxisMaximum(GraphAxis::XAxis, s.SampleScale);
    } else {
        m_graph.SetAutoScale(GraphAxis::XAxis, true); // 0..10 while empty, then all samples
    }
    m_graph.Redraw();
}

} // namespace ventrix::graph
