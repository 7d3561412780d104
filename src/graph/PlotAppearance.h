#pragma once

#include "platform/GraphControl.h"
#include "platform/MainControls.h"

#include <array>

namespace ventrix::graph {

// The graph's line-style and point-style codes in menu order (SOLID ... DASH_DOT, NONE ... CROSS).
inline constexpr std::array<int, 5> kLineStyleCodes { 1, 2, 4, 5, 6 };
inline constexpr std::array<int, 7> kPointStyleCodes { 0, 1, 2, 22, 6, 3, 16 };

// The plot-appearance options of the Option menu: writes each choice to "Plot-1" and the axes,
// and keeps the menu's check marks. Holds no state besides the check marks.
class PlotAppearance {
public:
    PlotAppearance(platform::MainControls& controls, platform::GraphControl& graph);
    void SelectLineWidth(int width); // WIDTH0..WIDTH5
    void SelectLineStyle(int index); // 0..4, menu order
    void SelectPointStyle(int index); // 0..6, menu order
    void ToggleFill();
    void ToggleGrid();

private:
    platform::MainControls& m_controls;
    platform::GraphControl& m_graph;
};

} // namespace ventrix::graph
