#include "files/FilesTestRig.h"

#include <gtest/gtest.h>

#include <tuple>

namespace ventrix::files {
namespace {

using testing::FilesTestRig;

auto Fields(const fakes::FakeGraphPrintSurface::Look& l)
{
    return std::make_tuple(l.back, l.xAxis, l.yAxis, l.line, l.fillColour, l.fill, l.xFormat, l.yFormat);
}

// Black on white with blank time labels on paper; afterwards the screen colours, the fill on
// only when FILL is checked and its colour blue either way. A printer failure sends no page, but
// the colours are back all the same. A cancelled dialog prints and changes nothing.
TEST(GraphPrint, PrintsBlackOnWhiteAndPutsTheScreenColoursBack)
{
    for (bool fillChecked : { false, true }) {
        for (int failFrom : { -1, 0, 4 }) {
            SCOPED_TRACE(std::to_string(fillChecked) + ", fail from " + std::to_string(failFrom));
            FilesTestRig t;
            t.c.FILL.SetChecked(fillChecked);
            t.rig.graphPrint.look.fill = true;
            t.rig.graphPrint.look.fillColour = 0x123456;
            t.rig.printer.failFrom = failFrom;
            t.rig.clock.SetTime(22, 5, 9);
            t.rig.dialogs.printAnswers.push_back(platform::PrintDialogResult { 1, 3, 2, 2 });
            t.c.CMD_PRINT.Click();

            EXPECT_EQ(t.rig.dialogs.printRequests, (std::vector<int> { 0x140004 }));
            ASSERT_EQ(t.rig.graphPrint.captures.size(), 1u);
            EXPECT_EQ(Fields(t.rig.graphPrint.captures[0]),
                Fields({ 0xFFFFFF, 0, 0, 0, 0x123456, false, "    ", "#.###k     " }));
            EXPECT_EQ(Fields(t.rig.graphPrint.look),
                Fields({ 0, 0x00FFFF, 0x00FFFF, 0x00FF00, 0xFF0000, fillChecked, "", "#.###k" }));
            EXPECT_FALSE(t.c.picPRINT.Visible());
            EXPECT_EQ(t.rig.printer.sentPages, failFrom < 0 ? 1 : 0);
            if (failFrom < 0) {
                EXPECT_EQ(
                    std::make_pair(t.rig.printer.orientation, t.rig.printer.copies), std::make_pair(2, 1));
                EXPECT_EQ(t.rig.printer.lines, (std::vector<std::string> { "", "2026-11-21\t10:05:09 PM" }));
                EXPECT_EQ(t.rig.printer.pictures, 1);
            }
        }
    }
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
