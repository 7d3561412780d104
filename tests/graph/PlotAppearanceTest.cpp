#include "graph/PlotAppearance.h"

#include "fakes/TestRig.h"

#include <gtest/gtest.h>

#include <vector>

namespace ventrix::graph {
namespace {

template <std::size_t N> std::vector<bool> Marks(const std::array<platform::MenuItem, N>& items)
{
    std::vector<bool> marks;
    for (const auto& item : items)
        marks.push_back(item.Checked());
    return marks;
}

class PlotAppearanceTest : public ::testing::Test {
protected:
    fakes::TestRig rig;
    PlotAppearance appearance { rig.controls, rig.graph };
};

TEST_F(PlotAppearanceTest, ExclusiveGroupsWriteTheGraphCodeAndMoveTheOneCheckMark)
{
    struct Case {
        const char* name;
        void (PlotAppearance::*select)(int);
        int index;
        int fakes::FakeGraph::*written;
        int code;
    };
    const Case cases[] = {
        { "width 0 is allowed", &PlotAppearance::SelectLineWidth, 0, &fakes::FakeGraph::lineWidth, 0 },
        { "width 5", &PlotAppearance::SelectLineWidth, 5, &fakes::FakeGraph::lineWidth, 5 },
        { "Step", &PlotAppearance::SelectLineStyle, 1, &fakes::FakeGraph::lineStyle, 2 },
        { "Dash", &PlotAppearance::SelectLineStyle, 2, &fakes::FakeGraph::lineStyle, 4 },
        { "Dot", &PlotAppearance::SelectLineStyle, 3, &fakes::FakeGraph::lineStyle, 5 },
        { "Dash Dot", &PlotAppearance::SelectLineStyle, 4, &fakes::FakeGraph::lineStyle, 6 },
        { "Solid", &PlotAppearance::SelectLineStyle, 0, &fakes::FakeGraph::lineStyle, 1 },
        { "Empty Square", &PlotAppearance::SelectPointStyle, 1, &fakes::FakeGraph::pointStyle, 1 },
        { "Solid Square", &PlotAppearance::SelectPointStyle, 2, &fakes::FakeGraph::pointStyle, 2 },
        { "Empty Diamond", &PlotAppearance::SelectPointStyle, 3, &fakes::FakeGraph::pointStyle, 22 },
        { "Solid Diamond", &PlotAppearance::SelectPointStyle, 4, &fakes::FakeGraph::pointStyle, 6 },
        { "Asterisk", &PlotAppearance::SelectPointStyle, 5, &fakes::FakeGraph::pointStyle, 3 },
        { "Cross", &PlotAppearance::SelectPointStyle, 6, &fakes::FakeGraph::pointStyle, 16 },
        { "NONE", &PlotAppearance::SelectPointStyle, 0, &fakes::FakeGraph::pointStyle, 0 },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        rig.graph.*c.written = -1;
        (appearance.*c.select)(c.index);
        EXPECT_EQ(rig.graph.*c.written, c.code);

        std::vector<bool> expected;
        std::vector<bool> marks;
        if (c.select == &PlotAppearance::SelectLineWidth) {
            marks = Marks(rig.controls.WIDTH_ITEMS);
            expected.assign(6, false);
        } else if (c.select == &PlotAppearance::SelectLineStyle) {
            marks = Marks(rig.controls.STYLE_ITEMS);
            expected.assign(5, false);
        } else {
            marks = Marks(rig.controls.POINT_ITEMS);
            expected.assign(7, false);
        }
        expected[static_cast<std::size_t>(c.index)] = true;
        EXPECT_EQ(marks, expected);
    }
}

TEST_F(PlotAppearanceTest, ChoosingTheCheckedEntryWritesTheValueAgain)
{
    appearance.SelectLineStyle(2);
    rig.graph.calls.clear();
    appearance.SelectLineStyle(2);
    EXPECT_EQ(rig.graph.calls, std::vector<std::string> { "LineStyle=4" });
    EXPECT_TRUE(rig.controls.STYLE_ITEMS[2].Checked());
}

TEST_F(PlotAppearanceTest, TogglesFollowTheirCheckMark)
{
    // Designed state: fill off, grid on.
    appearance.ToggleFill();
    EXPECT_TRUE(rig.controls.FILL.Checked());
    EXPECT_TRUE(rig.graph.fill);
    appearance.ToggleFill();
    EXPECT_FALSE(rig.controls.FILL.Checked());
    EXPECT_FALSE(rig.graph.fill);

    rig.graph.calls.clear();
    appearance.ToggleGrid();
    EXPECT_FALSE(rig.controls.Grid.Checked());
    appearance.ToggleGrid();
    EXPECT_TRUE(rig.controls.Grid.Checked());
    EXPECT_TRUE(rig.graph.xAxis.majorGrid);
    EXPECT_TRUE(rig.graph.yAxis.majorGrid);
    // The amplitude axis is written before the sample axis, every time.
    EXPECT_EQ(rig.graph.calls, (std::vector<std::string> { "GridY=0", "GridX=0", "GridY=1", "GridX=1" }));
}

} // namespace
} // namespace ventrix::graph
