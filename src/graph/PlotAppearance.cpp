#include "graph/PlotAppearance.h"

namespace ventrix::graph {

// Placeholder until the plot options land.
PlotAppearance::PlotAppearance(platform::MainControls& controls, platform::GraphControl& graph)
    : m_controls(controls)
    , m_graph(graph)
{
}

void PlotAppearance::SelectLineWidth(int) { }
void PlotAppearance::SelectLineStyle(int) { }
void PlotAppearance::SelectPointStyle(int) { }
void PlotAppearance::ToggleFill() { }
void PlotAppearance::ToggleGrid() { }

} // namespace ventrix::graph
