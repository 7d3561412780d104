#include "graph/GraphCursors.h"

#include "graph/EngineeringFormat.h"

#include <cmath>
#include <utility>

namespace ventrix::graph {

namespace {
using platform::GraphAxis;

constexpr std::array<const char*, 3> kModeToolTips {
    "Drag a box over the area to zoom in",
    "Pressing the mouse button and drag along the graph will pan the whole screen to any direction you want",
    "Cursors can help you to measure the amplitude and relative time between two samples on the graph",
};
constexpr int kSnapToSamples = 1; // the cursor mode that stands a cursor on the samples of the plot
constexpr int kCursorMode = 2;

// Sampling interval in milliseconds -> seconds per sample for the time between the cursors.
constexpr std::array<std::pair<double, int>, 6> kIntervalFactors { {
    { 1000.0, 1 },
    { 2000.0, 2 },
    { 5000.0, 5 },
    { 10000.0, 10 },
    { 30000.0, 30 },
    { 60000.0, 60 },
} };
} // namespace

GraphCursors::GraphCursors(
    state::AppState& state, platform::MainControls& controls, platform::GraphControl& graph)
    : m_state(state)
    , m_controls(controls)
    , m_graph(graph)
{
}

std::string GraphCursors::TimeText(double x) const
{
    return FormatDecimals(x * m_state.SampleIntervalMs / 1000.0, 0, 0) + "s";
}

std::string GraphCursors::AmplitudeText(double y) const
{
    return FormatEngineering(y) + m_state.BaseUnit;
}

void GraphCursors::WriteTimeBetween(double samples)
{
    for (const auto& [interval, factor] : kIntervalFactors) {
        if (m_state.SampleIntervalMs == interval) {
            m_controls.X1_X2_VAL_LBL.SetCaption(FormatDecimals(samples * factor, 0, 0) + "s");
            return;
        }
    }
}

void GraphCursors::HideCursors()
{
    m_graph.SetCursorVisible(1, false);
    m_graph.SetCursorVisible(2, false);
    for (platform::Label* label : m_controls.CursorLabels())
        label->SetEnabled(false); // greyed; they keep their last text
}

void GraphCursors::SelectGraphMode(int index)
{
    if (index < 0 || index >= static_cast<int>(kTrackingModes.size()) || index == m_state.GraphMode)
        return;
    const auto entry = static_cast<std::size_t>(index);
    m_state.GraphMode = static_cast<std::uint16_t>(index);
    m_controls.GRAPH_MODE_COMBO.SetToolTip(kModeToolTips[entry]);
    m_graph.SetTrackingMode(kTrackingModes[entry]);
    if (index != kCursorMode) {
        HideCursors();
        return;
    }

    m_graph.SetCursorMode(1, kSnapToSamples);
    m_graph.SetCursorMode(2, kSnapToSamples);
    m_graph.SetCursorVisible(1, true);
    m_graph.SetCursorVisible(2, true);
    CenterCursors();
    for (platform::Label* label : m_controls.CursorLabels())
        label->SetEnabled(true);
    WriteReadouts(false);
}

void GraphCursors::CursorMoved(int cursor, double x, double y)
{
    // The moved cursor's readouts come from the event itself, the differences from the graph.
    if (cursor == 1) {
        m_controls.X1_VAL_LBL.SetCaption(TimeText(x));
        m_controls.Y1_VAL_LBL.SetCaption(AmplitudeText(y));
    } else if (cursor == 2) {
        m_controls.X2_VAL_LBL.SetCaption(TimeText(x));
        m_controls.Y2_VAL_LBL.SetCaption(AmplitudeText(y));
    }
    m_controls.Y1_Y2_VAL_LBL.SetCaption(AmplitudeText(std::abs(m_graph.CursorY(1) - m_graph.CursorY(2))));
    WriteTimeBetween(std::abs(m_graph.CursorX(2) - m_graph.CursorX(1)));
}

void GraphCursors::CenterCursors()
{
    m_graph.SetCursorX(
        1, (m_graph.AxisMaximum(GraphAxis::XAxis) + m_graph.AxisMinimum(GraphAxis::XAxis)) / 2.0);
    m_graph.SetCursorX(2, m_graph.CursorX(1));
}

void GraphCursors::ClampCursors()
{
    for (int cursor : { 1, 2 }) {
        const double x = m_graph.CursorX(cursor);
        if (x > m_graph.AxisMaximum(GraphAxis::XAxis))
            m_graph.SetCursorX(cursor, m_graph.AxisMaximum(GraphAxis::XAxis));
        else if (x < m_graph.AxisMinimum(GraphAxis::XAxis))
            m_graph.SetCursorX(cursor, m_graph.AxisMinimum(GraphAxis::XAxis));
    }
}

void GraphCursors::RefreshAfterNewPoint()
{
    // While data arrives the differences keep their sign: negative when cursor 2 stands to the
    // right of or above cursor 1.
    WriteReadouts(true);
}

void GraphCursors::WriteReadouts(bool signedDifferences)
{
    const double x1 = m_graph.CursorX(1);
    const double y1 = m_graph.CursorY(1);
    const double x2 = m_graph.CursorX(2);
    const double y2 = m_graph.CursorY(2);
    m_controls.X1_VAL_LBL.SetCaption(TimeText(x1));
    m_controls.Y1_VAL_LBL.SetCaption(AmplitudeText(y1));
    m_controls.X2_VAL_LBL.SetCaption(TimeText(x2));
    m_controls.Y2_VAL_LBL.SetCaption(AmplitudeText(y2));
    m_controls.Y1_Y2_VAL_LBL.SetCaption(AmplitudeText(signedDifferences ? y1 - y2 : std::abs(y1 - y2)));
    WriteTimeBetween(signedDifferences ? x1 - x2 : std::abs(x2 - x1));
}

} // namespace ventrix::graph
