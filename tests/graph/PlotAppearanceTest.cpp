#include "graph/PlotAppearance.h"

#include "fakes/TestRig.h"

#include <gtest/gtest.h>

namespace ventrix::graph {
namespace {

template <std::size_t N>
std::string Marks(const std::array<platform::MenuItem, N>& items) // "0010": the check marks in menu order
{
    std::string marks;
    for (const auto& item : items)
        marks += item.Checked() ? '1' : '0';
    return marks;
}

TEST(PlotAppearanceTest, EntriesWriteTheirCodeAndKeepTheirCheckMarks)
{
    fakes::TestRig rig; // the menu starts with WIDTH3, SOLID, NONE and Grid checked, FILL not
    PlotAppearance a(rig.controls, rig.graph);
    auto& c = rig.controls;

    a.SelectLineWidth(0);
    a.SelectLineStyle(4);
    a.SelectPointStyle(3);
    EXPECT_EQ(Marks(c.WIDTH_ITEMS) + Marks(c.STYLE_ITEMS) + Marks(c.POINT_ITEMS),
        "100000"
        "00001"
        "0001000");
    a.SelectLineStyle(4); // the checked entry again: written again, nothing else changes
    a.SelectPointStyle(4);
    a.SelectPointStyle(5);
    EXPECT_EQ(Marks(c.STYLE_ITEMS) + Marks(c.POINT_ITEMS),
        "00001"
        "0000010");
    a.ToggleFill();
    a.ToggleGrid();
    EXPECT_TRUE(c.FILL.Checked());
    EXPECT_FALSE(c.Grid.Checked());
    a.ToggleFill();
    a.ToggleGrid();
    EXPECT_FALSE(c.FILL.Checked());
    EXPECT_TRUE(c.Grid.Checked());

    EXPECT_EQ(rig.graph.calls,
        (std::vector<std::string> { "LineWidth=0", "LineStyle=6", "PointStyle=22", "LineStyle=6",
            "PointStyle=6", "PointStyle=3", "Fill=1", "GridY=0", "GridX=0", "Fill=0", "GridY=1",
            "GridX=1" }));
}

} // namespace
} // namespace ventrix::graph
