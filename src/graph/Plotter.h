#pragma once

#include "graph/GraphCursors.h"
#include "platform/GraphControl.h"
#include "platform/MainControls.h"
#include "state/AppState.h"

#include <array>
#include <cstdint>

namespace ventrix::graph {

// Full-scale values of AMPLITUDE_COMBO's entries (0 = automatic) and the sample counts of
// SAMPLE_COMBO's entries (0 = automatic), in list order.
inline constexpr std::array<double, 18> kAmplitudeRanges { 0.0, 4e-9, 4e-8, 4e-7, 4e-6, 4e-5, 4e-4, 0.004,
    0.04, 0.4, 4.0, 40.0, 400.0, 4000.0, 40000.0, 400000.0, 4000000.0, 40000000.0 };
inline constexpr std::array<std::int16_t, 8> kSampleScales { 0, 10, 20, 50, 100, 200, 500, 1000 };

// The running graph: plots each sample as the next point (restarting the graph on a change of
// function or of temperature unit), keeps the data extremes and sets the amplitude and time
// axes from them or from the ranges chosen in AMPLITUDE_COMBO and SAMPLE_COMBO, and zooms back
// to all data. Keeps the cursors inside the view after each point. Does not log samples; the
// sampling tick calls PlotSample after logging one.
class Plotter {
public:
    Plotter(state::AppState& state, platform::MainControls& controls, platform::GraphControl& graph,
        GraphCursors& cursors);

    // Plots the current reading as the next point, then in Cursor mode keeps both cursors in
    // view and refreshes their readouts.
    void PlotSample();
    // Sets "YAxis-1" for a plotted value with precision band p, and remembers the automatic
    // extents of both axes.
    void ApplyAmplitudeScale(double precision, double value, bool spanIsTiny);

    void SelectAmplitudeRange(int index); // AMPLITUDE_COMBO
    void SelectSampleScale(int index); // SAMPLE_COMBO
    void ZoomAllData(); // AUTO_ZOOM and CMD_ZOOM

    // At the start of acquisition, after the plot was cleared: with a sample count chosen, the
    // time axis shows sample 0 to that count.
    void SetUpTimeAxis();
    // After the log was cleared: the axes of an empty graph, redrawn. Amplitude -40M..40M for a
    // signed reading, else 0..40M, or the manual range chosen; samples 0..N with a sample count
    // chosen, else the time axis follows the data again (0..10 while there is none).
    void ShowEmptyGraph();

    static constexpr double kEmptyGraphAmplitude = 40000000.0;
    static constexpr double kEmptyGraphSamples = 10.0;

private:
    void RestartGraph();
    void KeepSampleSpan();

    state::AppState& m_state;
    platform::MainControls& m_controls;
    platform::GraphControl& m_graph;
    GraphCursors& m_cursors;
};

} // namespace ventrix::graph
