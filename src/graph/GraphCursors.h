#pragma once

#include "platform/GraphControl.h"
#include "platform/MainControls.h"
#include "state/AppState.h"

#include <array>
#include <string>

namespace ventrix::graph {

// The graph's mouse modes and its two measurement cursors: the selection handler of
// GRAPH_MODE_COMBO (Zoom, Pan, Cursor), the cursor-change event, and the six readouts beside the
// graph (times in seconds, amplitudes in engineering notation with the unit, and the differences
// between the cursors). Zooming, panning and dragging themselves are the graph's.
class GraphCursors {
public:
    GraphCursors(state::AppState& state, platform::MainControls& controls, platform::GraphControl& graph);

    void SelectGraphMode(int index); // GRAPH_MODE_COMBO: 0 Zoom, 1 Pan, 2 Cursor
    void CursorMoved(int cursor, double x, double y); // the graph's cursor-change event

    // Both cursors to the middle of the visible X range (cursor 2 onto cursor 1).
    void CenterCursors();
    // Cursor 1, then cursor 2, back inside the visible X range.
    void ClampCursors();
    // After a new point: all six readouts, the two differences signed (Y1 - Y2, X1 - X2).
    void RefreshAfterNewPoint();

    // Tracking mode of the graph for each entry of GRAPH_MODE_COMBO.
    static constexpr std::array<int, 3> kTrackingModes { 6, 3, 2 };

private:
    std::string TimeText(double x) const;
    std::string AmplitudeText(double y) const;
    // The time between two cursors written into X1_X2_VAL_LBL; left as it was when the sampling
    // interval is not one of the six.
    void WriteTimeBetween(double samples);
    void HideCursors();
    // The six readouts from the cursors' positions, in order: X1, Y1, X2, Y2, Y1-Y2, X1-X2; the
    // differences as Y1 - Y2 and X1 - X2, or as magnitudes.
    void WriteReadouts(bool signedDifferences);

    state::AppState& m_state;
    platform::MainControls& m_controls;
    platform::GraphControl& m_graph;
};

} // namespace ventrix::graph
