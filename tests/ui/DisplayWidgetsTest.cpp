#include "ui/DialKnob.h"
#include "ui/LcdLabel.h"

#include <gtest/gtest.h>

namespace ventrix::ui {
namespace {

TEST(LcdPanelTest, SegmentTextKeepsDigitsAndMapsWhatTheFaceCannotShow)
{
    EXPECT_EQ(LcdLabel::SegmentText("12.34"), "12.34");
    EXPECT_EQ(LcdLabel::SegmentText("OPEn"), "0PEn");
    EXPECT_EQ(LcdLabel::SegmentText("Shrt"), "5hrt");
    EXPECT_EQ(LcdLabel::SegmentText(" HI "), "!X|!");
}

TEST(DialKnobTest, NeedleFollowsARangeWrittenAfterIt)
{
    // The gauge writes the needle before the range: a needle beyond the old range must land
    // on its place once the range arrives.
    DialKnob dial;
    dial.SetPointerValue("Pointer-1", 900.0);
    dial.SetAxisMinimum(-1200.0);
    dial.SetAxisMaximum(1200.0);
    dial.FinishGlide();
    EXPECT_DOUBLE_EQ(dial.NeedleShown(), 900.0);

    dial.SetAxisMaximum(-2000.0); // momentarily upside down: ignored until the other end comes
    EXPECT_EQ(dial.AxisMaximum(), -2000.0);
    dial.SetAxisMaximum(2400.0);
    dial.SetAxisMinimum(-2400.0);
    dial.FinishGlide();
    EXPECT_DOUBLE_EQ(dial.NeedleShown(), 900.0);
}

} // namespace
} // namespace ventrix::ui
