#include "ui/DialKnob.h"
#include "ui/LcdLabel.h"
#include "ui/LcdPanel.h"

#include <QLabel>
#include <gtest/gtest.h>

namespace ventrix::ui {
namespace {

TEST(LcdPanelTest, HoldsEveryNamedLabelInsideTheFrame)
{
    LcdPanel panel;
    EXPECT_EQ(panel.objectName(), "DIGIT_FRAME");
    for (const char* name : { "DIGIT_LBL", "NEG_LBL", "MODE_LBL", "HOLD_LBL", "AUTO_LBL", "BATTERY_LBL",
             "MIN_LBL", "FUNCTION_LBL" }) {
        const auto labels = panel.findChildren<QLabel*>(QString::fromLatin1(name));
        ASSERT_EQ(labels.size(), 1) << name;
        EXPECT_EQ(labels[0]->parentWidget(), &panel) << name;
    }
}

TEST(LcdPanelTest, LabelsStayInsideThePanelAndApartAtAnySize)
{
    LcdPanel panel;
    panel.show();
    for (const QSize size : { QSize(420, 150), QSize(210, 75), QSize(900, 260) }) {
        panel.resize(size);
        const QList<QLabel*> labels = panel.findChildren<QLabel*>();
        for (QLabel* label : labels) {
            const std::string name = label->objectName().toStdString();
            EXPECT_TRUE(panel.rect().contains(label->geometry())) << name;
            EXPECT_GT(label->height(), 4) << name;
            for (QLabel* other : labels)
                EXPECT_TRUE(other == label || !label->geometry().intersects(other->geometry()))
                    << name << " and " << other->objectName().toStdString();
        }
    }
}

TEST(LcdPanelTest, SegmentTextKeepsDigitsAndMapsWhatTheFaceCannotShow)
{
    EXPECT_EQ(LcdLabel::SegmentText("12.34"), "12.34");
    EXPECT_EQ(LcdLabel::SegmentText("OPEn"), "0PEn");
    EXPECT_EQ(LcdLabel::SegmentText("Shrt"), "5hrt");
    EXPECT_EQ(LcdLabel::SegmentText(" HI "), "!X|!");
}

TEST(DialKnobTest, PointersAndRangeReadBackAsWritten)
{
    DialKnob dial;
    EXPECT_EQ(dial.objectName(), "KNOB_ANALOG");
    for (const char* name :
        { "Pointer-1", "Pointer-MAX", "Pointer-MIN", "Pointer-FILLMAX", "Pointer-FILLMIN" })
        EXPECT_EQ(dial.PointerValue(name), 0.0) << name;

    const float minimum = -4.4f, maximum = 4.4f;
    dial.SetAxisMinimum(minimum);
    dial.SetAxisMaximum(maximum);
    dial.SetPointerValue("Pointer-MAX", 4.0f);
    dial.SetPointerValue("Pointer-MIN", -4.0f);
    dial.SetPointerValue("Pointer-1", -12.34);
    EXPECT_EQ(dial.AxisMinimum(), static_cast<double>(minimum));
    EXPECT_EQ(dial.AxisMaximum(), static_cast<double>(maximum));
    EXPECT_EQ(dial.PointerValue("Pointer-MAX"), 4.0);
    EXPECT_EQ(dial.PointerValue("Pointer-MIN"), -4.0);
    EXPECT_EQ(dial.PointerValue("Pointer-1"), -12.34)
        << "the needle reads back what was written, not the clamp";

    dial.SetPointerValue("Pointer-unknown", 5.0);
    EXPECT_EQ(dial.PointerValue("Pointer-unknown"), 0.0);
    dial.SetVisible(false);
    EXPECT_TRUE(dial.isHidden());
    EXPECT_FALSE(dial.Visible());
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
