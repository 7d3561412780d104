#include "graph/PlotAppearance.h"

#include "platform/MenuGroup.h"

namespace ventrix::graph {

using platform::CheckOnly;

PlotAppearance::PlotAppearance(platform::MainControls& controls, platform::GraphControl& graph)
    : m_controls(controls)
    , m_graph(graph)
{
}

void PlotAppearance::SelectLineWidth(int width)
{
    if (width < 0 || width >= static_cast<int>(m_controls.WIDTH_ITEMS.size()))
        return;
    m_graph.SetLineWidth(width);
    CheckOnly(m_controls.WIDTH_ITEMS, static_cast<std::size_t>(width));
}

void PlotAppearance::SelectLineStyle(int index)
{
    if (index < 0 || index >= static_cast<int>(kLineStyleCodes.size()))
        return;
    m_graph.SetLineStyle(kLineStyleCodes[static_cast<std::size_t>(index)]);
    CheckOnly(m_controls.STYLE_ITEMS, static_cast<std::size_t>(index));
}

void PlotAppearance::SelectPointStyle(int index)
{
    if (index < 0 || index >= static_cast<int>(kPointStyleCodes.size()))
        return;
    m_graph.SetPointStyle(kPointStyleCodes[static_cast<std::size_t>(index)]);
    CheckOnly(m_controls.POINT_ITEMS, static_cast<std::size_t>(index));
}

void PlotAppearance::ToggleFill()
{
    const bool on = !m_controls.FILL.Checked();
    m_controls.FILL.SetChecked(on);
    m_graph.SetFillToBase(on);
}

void PlotAppearance::ToggleGrid()
{
    const bool on = !m_controls.Grid.Checked();
    m_controls.Grid.SetChecked(on);
    m_graph.SetMajorGrid(platform::GraphAxis::YAxis1, on);
    m_graph.SetMajorGrid(platform::GraphAxis::XAxis, on);
}

} // namespace ventrix::graph
