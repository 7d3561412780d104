#include "files/FilesTestRig.h"

#include <gtest/gtest.h>

namespace ventrix::files {
namespace {

using testing::FilesTestRig;
using Look = fakes::FakeGraphPrintSurface::Look;

void ExpectLook(const Look& look, const Look& expected, const std::string& where)
{
    EXPECT_EQ(look.back, expected.back) << where;
    EXPECT_EQ(look.xAxis, expected.xAxis) << where;
    EXPECT_EQ(look.yAxis, expected.yAxis) << where;
    EXPECT_EQ(look.line, expected.line) << where;
    EXPECT_EQ(look.fillColour, expected.fillColour) << where;
    EXPECT_EQ(look.fill, expected.fill) << where;
    EXPECT_EQ(look.xFormat, expected.xFormat) << where;
    EXPECT_EQ(look.yFormat, expected.yFormat) << where;
}

// Black on white with blank time labels on paper; afterwards the screen colours, the fill on
// only when FILL is checked and its colour blue either way. A printer failure sends no page but
// the colours are back all the same.
TEST(GraphPrint, PrintsBlackOnWhiteAndPutsTheScreenColoursBack)
{
    for (bool fillChecked : { false, true }) {
        for (int failFrom : { -1, 0, 4 }) {
            FilesTestRig t;
            const std::string where
                = std::string(fillChecked ? "fill" : "no fill") + ", fail from " + std::to_string(failFrom);
            t.c.FILL.SetChecked(fillChecked);
            t.rig.graphPrint.look.fill = true;
            t.rig.graphPrint.look.fillColour = 0x123456;
            t.rig.printer.failFrom = failFrom;
            t.rig.clock.SetTime(22, 5, 9);
            t.rig.dialogs.printAnswers.push_back(platform::PrintDialogResult { 1, 3, 2, 2 });
            t.c.CMD_PRINT.Click();

            EXPECT_EQ(t.rig.dialogs.printRequests, (std::vector<int> { 0x140004 })) << where;
            ASSERT_EQ(t.rig.graphPrint.captures.size(), 1u) << where;
            ExpectLook(t.rig.graphPrint.captures[0],
                { 0xFFFFFF, 0, 0, 0, 0x123456, false, "    ", "#.###k     " }, where);
            ExpectLook(t.rig.graphPrint.look,
                { 0, 0x00FFFF, 0x00FFFF, 0x00FF00, 0xFF0000, fillChecked, "", "#.###k" }, where);
            EXPECT_FALSE(t.c.picPRINT.Visible()) << where;
            EXPECT_EQ(t.rig.printer.sentPages, failFrom < 0 ? 1 : 0) << where;
            if (failFrom < 0) {
                EXPECT_EQ(t.rig.printer.orientation, 2) << where;
                EXPECT_EQ(t.rig.printer.copies, 1) << where;
                EXPECT_EQ(t.rig.printer.lines, (std::vector<std::string> { "", "2026-11-21\t10:05:09 PM" }))
                    << where;
                ASSERT_EQ(t.rig.printer.pictures.size(), 1u) << where;
                EXPECT_EQ(t.rig.printer.pictures[0].scale, 0.25) << where;
            }
            EXPECT_TRUE(t.rig.dialogs.boxes.empty()) << where;
        }
    }
}

TEST(GraphPrint, CancelPrintsNothingAndLeavesTheGraph)
{
    FilesTestRig t;
    t.rig.graphPrint.look.fill = true;
    t.c.MENU_PRINT_GRAPH.Click();
    EXPECT_EQ(t.rig.dialogs.printRequests.size(), 1u);
    EXPECT_TRUE(t.rig.graphPrint.captures.empty());
    EXPECT_TRUE(t.rig.graphPrint.look.fill);
    EXPECT_EQ(t.rig.printer.calls, 0);
}

} // namespace
} // namespace ventrix::files
