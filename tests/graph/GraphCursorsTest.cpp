#include "graph/GraphCursors.h"

#include "fakes/TestRig.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace ventrix::graph {
namespace {

struct GraphCursorsTest : ::testing::Test {
    GraphCursorsTest()
    {
        rig.state.BaseUnit = "V";
        rig.graph.SetOnCursorChange([this](int n, double x, double y) { cursors.CursorMoved(n, x, y); });
    }
    // X1, Y1, X2, Y2, Y1-Y2, X1-X2 as shown.
    std::array<std::string, 6> Readouts() const
    {
        const auto& c = rig.controls;
        return { c.X1_VAL_LBL.Caption(), c.Y1_VAL_LBL.Caption(), c.X2_VAL_LBL.Caption(),
            c.Y2_VAL_LBL.Caption(), c.Y1_Y2_VAL_LBL.Caption(), c.X1_X2_VAL_LBL.Caption() };
    }

    fakes::TestRig rig;
    GraphCursors cursors { rig.state, rig.controls, rig.graph };
};

TEST_F(GraphCursorsTest, ModesSetTrackingCursorsAndLabels)
{
    rig.graph.points = { 0.5, 1.5, 2.5, 3.5, 4.5, 5.5 };
    rig.graph.SetAxisMaximum(platform::GraphAxis::XAxis, 4.0);

    cursors.SelectGraphMode(2);
    EXPECT_EQ(rig.graph.trackingMode, 2);
    for (int n : { 1, 2 }) {
        EXPECT_TRUE(rig.graph.CursorVisible(n));
        EXPECT_EQ(rig.graph.CursorMode(n), 1);
        EXPECT_EQ(rig.graph.CursorX(n), 2.0) << "the middle of 0..4";
    }
    for (platform::Label* label : rig.controls.CursorLabels())
        EXPECT_TRUE(label->Enabled()) << label->Name();
    EXPECT_EQ(Readouts(), (std::array<std::string, 6> { "2s", "2.5V", "2s", "2.5V", "0.0V", "0s" }));
    EXPECT_EQ(rig.controls.GRAPH_MODE_COMBO.ToolTip(),
        "Cursors can help you to measure the amplitude and relative time between two samples on the graph");

    rig.graph.DragCursor(1, 5.2);
    rig.graph.SetAxisMinimum(platform::GraphAxis::XAxis, 3.0);
    cursors.SelectGraphMode(2); // already there: nothing moves
    EXPECT_EQ(rig.graph.CursorX(1), 5.0);
    EXPECT_EQ(rig.graph.CursorX(2), 2.0);

    cursors.SelectGraphMode(1);
    EXPECT_EQ(rig.graph.trackingMode, 3);
    EXPECT_FALSE(rig.graph.CursorVisible(1) || rig.graph.CursorVisible(2));
    for (platform::Label* label : rig.controls.CursorLabels())
        EXPECT_FALSE(label->Enabled()) << label->Name();
    EXPECT_EQ(rig.controls.X1_VAL_LBL.Caption(), "5s") << "greyed, not cleared";
    cursors.SelectGraphMode(0);
    EXPECT_EQ(rig.graph.trackingMode, 6);
    EXPECT_EQ(rig.controls.GRAPH_MODE_COMBO.ToolTip(), "Drag a box over the area to zoom in");
}

TEST_F(GraphCursorsTest, ReadoutsScaleBySamplingInterval)
{
    rig.graph.points = std::vector<double>(10, 1.0);
    rig.state.SampleIntervalMs = 2000.0;
    cursors.SelectGraphMode(2);
    rig.graph.DragCursor(1, 3.0);
    rig.graph.DragCursor(2, 8.0);
    EXPECT_EQ(Readouts(), (std::array<std::string, 6> { "6s", "1.0V", "16s", "1.0V", "0.0V", "10s" }));

    // An interval outside the table leaves the time between as it was; the rest still update.
    rig.state.SampleIntervalMs = 1500.0;
    rig.graph.DragCursor(2, 6.0);
    EXPECT_EQ(Readouts(), (std::array<std::string, 6> { "6s", "1.0V", "9s", "1.0V", "0.0V", "10s" }));
    cursors.RefreshAfterNewPoint();
    EXPECT_EQ(rig.controls.X1_X2_VAL_LBL.Caption(), "10s");
}

// A drag shows the differences as magnitudes; the refresh after a new point keeps their sign.
TEST_F(GraphCursorsTest, DragShowsMagnitudesAndRefreshKeepsTheSign)
{
    rig.graph.points = { 0.0100, 0.0, 0.0, 0.0123 };
    rig.state.SampleIntervalMs = 1000.0;
    cursors.SelectGraphMode(2);
    rig.graph.DragCursor(1, 3.0);
    rig.graph.DragCursor(2, 0.0);
    EXPECT_EQ(rig.controls.Y1_Y2_VAL_LBL.Caption(), "2.3mV");
    cursors.RefreshAfterNewPoint();
    EXPECT_EQ(rig.controls.Y1_Y2_VAL_LBL.Caption(), "2.3mV");
    EXPECT_EQ(rig.controls.X1_X2_VAL_LBL.Caption(), "3s");

    rig.graph.DragCursor(1, 0.0);
    rig.graph.DragCursor(2, 3.0);
    EXPECT_EQ(rig.controls.Y1_Y2_VAL_LBL.Caption(), "2.3mV");
    EXPECT_EQ(rig.controls.X1_X2_VAL_LBL.Caption(), "3s");
    cursors.RefreshAfterNewPoint();
    EXPECT_EQ(rig.controls.Y1_Y2_VAL_LBL.Caption(), "-2.3mV");
    EXPECT_EQ(rig.controls.X1_X2_VAL_LBL.Caption(), "-3s");
    EXPECT_EQ(rig.controls.Y2_VAL_LBL.Caption(), "12.3mV");
}

} // namespace
} // namespace ventrix::graph
