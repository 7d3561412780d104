#include "ui/DialKnob.h"
#include "ui/LcdLabel.h"
#include "ui/LcdPanel.h"

#include <QDir>
#include <QLabel>
#include <QPixmap>
#include <QWidget>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace ventrix::ui {
namespace {

// Pictures of the widgets go to VENTRIX_SHOT_DIR when it is set, for a person to look at.
void SaveShot(QWidget& widget, const char* name)
{
    const char* dir = std::getenv("VENTRIX_SHOT_DIR");
    if (dir == nullptr)
        return;
    QDir().mkpath(QString::fromUtf8(dir));
    widget.grab().save(QString::fromUtf8(dir) + "/" + name + ".png");
}

QLabel* Label(LcdPanel& panel, const char* name)
{
    return panel.findChild<QLabel*>(QString::fromLatin1(name));
}

// One reading as the main window would put it on the labels.
struct Reading {
    const char* shot;
    const char* digits;
    const char* unit;
    bool negative;
    const char* hold;
    const char* autoRange;
    const char* battery;
    bool min;
    const char* function;
};

void Show(LcdPanel& panel, const Reading& r)
{
    Label(panel, "DIGIT_LBL")->setText(QString::fromUtf8(r.digits));
    Label(panel, "MODE_LBL")->setText(QString::fromUtf8(r.unit));
    Label(panel, "NEG_LBL")->setVisible(r.negative);
    Label(panel, "HOLD_LBL")->setText(r.hold);
    Label(panel, "AUTO_LBL")->setText(r.autoRange);
    Label(panel, "BATTERY_LBL")->setText(r.battery);
    Label(panel, "MIN_LBL")->setText("MIN");
    Label(panel, "MIN_LBL")->setVisible(r.min);
    Label(panel, "FUNCTION_LBL")->setText(r.function);
}

TEST(LcdPanelTest, HoldsEveryNamedLabelInsideTheFrame)
{
    LcdPanel panel;
    EXPECT_EQ(panel.objectName(), "DIGIT_FRAME");
    for (const char* name : { "DIGIT_LBL", "NEG_LBL", "MODE_LBL", "HOLD_LBL", "AUTO_LBL", "BATTERY_LBL",
             "MIN_LBL", "FUNCTION_LBL" }) {
        QLabel* label = Label(panel, name);
        ASSERT_NE(label, nullptr) << name;
        EXPECT_EQ(label->parentWidget(), &panel) << name;
        EXPECT_EQ(panel.findChildren<QLabel*>(QString::fromLatin1(name)).size(), 1) << name;
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
            EXPECT_TRUE(panel.rect().contains(label->geometry())) << label->objectName().toStdString();
            EXPECT_GT(label->height(), 4) << label->objectName().toStdString();
            for (QLabel* other : labels) {
                if (other == label)
                    continue;
                EXPECT_FALSE(label->geometry().intersects(other->geometry()))
                    << label->objectName().toStdString() << " and " << other->objectName().toStdString();
            }
        }
    }
}

TEST(LcdPanelTest, SegmentTextKeepsDigitsAndMapsWhatTheFaceCannotShow)
{
    EXPECT_EQ(LcdLabel::SegmentText("12.34"), "12.34");
    EXPECT_EQ(LcdLabel::SegmentText("OPEn"), "0PEn");
    EXPECT_EQ(LcdLabel::SegmentText(" OF "), "!0F!");
    EXPECT_EQ(LcdLabel::SegmentText("Shrt"), "5hrt");
    EXPECT_EQ(LcdLabel::SegmentText(" HI "), "!X|!");
    EXPECT_EQ(LcdLabel::SegmentText(" hFE"), "!hFE");
    EXPECT_EQ(LcdLabel::SegmentText("----"), "----");
}

TEST(LcdPanelTest, RendersReadings)
{
    LcdPanel panel;
    panel.resize(panel.sizeHint());
    const Reading readings[] = {
        { "lcd-dc-volts-auto", "12.34", "V", false, "", "AUTO", "", false, "" },
        { "lcd-open-ohm", "OPEn", "MOHM", false, "", "AUTO", "", false, "" },
        { "lcd-negative-hold-bat", "0.050", "mV", true, "HOLD", "", "BAT", false, "" },
        { "lcd-max-min", "1999", "°C", false, "HOLD", "AUTO", "BAT", true, "MAX" },
        { "lcd-diode", "0.512", "V", false, "", "", "", false, "DIODE" },
        { "lcd-overload-rel", " OF ", "KOHM", true, "", "AUTO", "", false, "REL" },
        { "lcd-logic", " HI ", "Logic", false, "", "", "", false, "" },
        { "lcd-short", "Shrt", "CONT", false, "", "", "", false, "" },
        { "lcd-low", " LO ", "Logic", false, "", "", "", false, "" },
        { "lcd-lock", "PLoc", "", false, "", "", "", false, "" },
        { "lcd-gain", " hFE", "hFE", false, "", "", "", false, "" },
        { "lcd-dashes", "----", "V AC", false, "", "AUTO", "", false, "" },
    };
    for (const Reading& r : readings) {
        Show(panel, r);
        const QImage image = panel.grab().toImage();
        EXPECT_FALSE(image.isNull()) << r.shot;
        SaveShot(panel, r.shot);
    }
    Show(panel, readings[0]);
    panel.resize(840, 300);
    SaveShot(panel, "lcd-large");
    panel.resize(260, 93);
    SaveShot(panel, "lcd-small");
}

TEST(DialKnobTest, PointersAndRangeReadBackAsWritten)
{
    DialKnob dial;
    EXPECT_EQ(dial.objectName(), "KNOB_ANALOG");
    for (const char* name :
        { "Pointer-1", "Pointer-MAX", "Pointer-MIN", "Pointer-FILLMAX", "Pointer-FILLMIN" })
        EXPECT_EQ(dial.PointerValue(name), 0.0) << name;

    dial.SetAxisMinimum(static_cast<float>(-4.4));
    dial.SetAxisMaximum(static_cast<float>(4.4));
    dial.SetPointerValue("Pointer-MAX", static_cast<float>(4.0));
    dial.SetPointerValue("Pointer-MIN", static_cast<float>(-4.0));
    dial.SetPointerValue("Pointer-1", -12.34);
    dial.SetPointerValue("Pointer-FILLMAX", 0.0);
    EXPECT_EQ(dial.AxisMinimum(), static_cast<double>(static_cast<float>(-4.4)));
    EXPECT_EQ(dial.AxisMaximum(), static_cast<double>(static_cast<float>(4.4)));
    EXPECT_EQ(dial.PointerValue("Pointer-MAX"), static_cast<double>(static_cast<float>(4.0)));
    EXPECT_EQ(dial.PointerValue("Pointer-MIN"), static_cast<double>(static_cast<float>(-4.0)));
    EXPECT_EQ(dial.PointerValue("Pointer-1"), -12.34)
        << "the needle reads back what was written, not the clamp";

    dial.SetPointerValue("Pointer-unknown", 5.0);
    EXPECT_EQ(dial.PointerValue("Pointer-unknown"), 0.0);
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

TEST(DialKnobTest, VisibilityRoundTrips)
{
    QWidget window;
    auto* dial = new DialKnob(&window);
    window.show();
    EXPECT_TRUE(dial->Visible());
    dial->SetVisible(false);
    EXPECT_FALSE(dial->Visible());
    EXPECT_TRUE(dial->isHidden());
    dial->SetVisible(true);
    EXPECT_TRUE(dial->Visible());
}

TEST(DialKnobTest, RendersScales)
{
    DialKnob dial;
    dial.resize(220, 220);
    struct Shot {
        const char* name;
        double min, max, outerMin, outerMax, needle;
    };
    const Shot shots[] = {
        { "dial-volts", -1000, 1000, -1200, 1200, 123.4 },
        { "dial-ohm-tenths", -400, 400, -440, 440, -250.5 },
        { "dial-small-range", -4, 4, -4.4, 4.4, 1.234 },
        { "dial-overload", -10, 10, -12, 12, 12 },
        { "dial-percent", -100, 100, -100, 100, 42 },
    };
    for (const Shot& s : shots) {
        dial.SetAxisMinimum(s.outerMin);
        dial.SetAxisMaximum(s.outerMax);
        dial.SetPointerValue("Pointer-MAX", s.max);
        dial.SetPointerValue("Pointer-MIN", s.min);
        dial.SetPointerValue("Pointer-1", s.needle);
        dial.FinishGlide();
        EXPECT_FALSE(dial.grab().toImage().isNull()) << s.name;
        SaveShot(dial, s.name);
    }
}

} // namespace
} // namespace ventrix::ui
