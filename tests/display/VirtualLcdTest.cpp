#include "display/VirtualLcd.h"

#include "fakes/TestRig.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace ventrix::display {
namespace {

class VirtualLcdTest : public ::testing::Test {
protected:
    VirtualLcdTest()
    {
        s.AwaitingAbsoluteReading = false;
        s.FunctionKind = 0;
        s.UnitLabel = "V";
        s.CountValue = 1234;
        s.DecimalDivisor = 100;
    }
    void SetByte(int byteNumber, std::uint8_t value) // frame bytes numbered as received, 2 to 8
    {
        s.FrameData[static_cast<std::size_t>(8 - byteNumber)] = value;
    }

    fakes::TestRig rig;
    state::AppState& s = rig.state;
    platform::MainControls& c = rig.controls;
    VirtualLcd lcd { rig.state, rig.controls };
};

TEST_F(VirtualLcdTest, ShowsDigitsOrWordUnitSignAndAnnunciators)
{
    s.IsPositive = false;
    SetByte(8, 0x31);
    c.MIN_LBL.SetCaption("earlier");
    c.DIGIT_FRAME.SetVisible(false);
    lcd.RefreshVirtualLcd();
    EXPECT_EQ(c.DIGIT_LBL.Caption(), "12.34");
    EXPECT_EQ(c.MODE_LBL.Caption(), "V");
    EXPECT_TRUE(c.NEG_LBL.Visible());
    EXPECT_EQ(c.BATTERY_LBL.Caption(), "BAT");
    EXPECT_EQ(c.AUTO_LBL.Caption(), "AUTO");
    EXPECT_EQ(c.HOLD_LBL.Caption(), "HOLD");
    EXPECT_FALSE(c.MIN_LBL.Visible());
    EXPECT_EQ(c.MIN_LBL.Caption(), "earlier") << "MIN is hidden without touching its caption";
    EXPECT_TRUE(c.DIGIT_FRAME.Visible());

    // A word is shown as it is, blanks included, even when the count holds a number.
    s.IsPositive = true;
    s.HasWord = true;
    s.DisplayWord = " OF ";
    s.CountValue = 4000;
    SetByte(8, 0x08); // the minus sign alone lights no annunciator
    lcd.RefreshVirtualLcd();
    EXPECT_EQ(c.DIGIT_LBL.Caption(), " OF ");
    EXPECT_FALSE(c.NEG_LBL.Visible());
    for (const platform::Label* label : { &c.BATTERY_LBL, &c.AUTO_LBL, &c.HOLD_LBL }) {
        EXPECT_EQ(label->Caption(), "") << label->Name();
        EXPECT_TRUE(label->Visible()) << label->Name() << ": switched by caption, not visibility";
    }
}

// The function annunciator: the first matching rule wins; DIODE and REL hide MIN, MAX leaves it
// as the MIN bit says.
TEST_F(VirtualLcdTest, FunctionWordAndMin)
{
    struct Row {
        const char* what;
        std::uint8_t functionKind, byte7, byte3;
        const char* function;
        bool minVisible;
    };
    const Row rows[] = { { "min alone", 0, 0x00, 0x01, "", true },
        { "rel with min", 0, 0x00, 0x03, "REL", false }, { "rel alone", 4, 0x00, 0x02, "REL", false },
        { "max with min", 0, 0x08, 0x01, "MAX", true }, { "max over rel", 0, 0x08, 0x02, "MAX", false },
        { "max over rel with min", 0, 0x08, 0x03, "MAX", true },
        { "diode with min", 9, 0x00, 0x01, "DIODE", false },
        { "diode over max, rel and min", 9, 0x08, 0x03, "DIODE", false },
        { "digit bits of byte 7 are not max", 0, 0xF7, 0x00, "", false } };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.what);
        s.FunctionKind = r.functionKind;
        SetByte(7, r.byte7);
        SetByte(3, r.byte3);
        c.FUNCTION_LBL.SetCaption("stale");
        c.MIN_LBL.SetCaption("");
        lcd.RefreshVirtualLcd();
        EXPECT_EQ(c.FUNCTION_LBL.Caption(), r.function);
        EXPECT_EQ(c.MIN_LBL.Visible(), r.minVisible);
        EXPECT_EQ(c.MIN_LBL.Caption(), r.byte3 & 0x01 ? "MIN" : "");
    }
}

TEST_F(VirtualLcdTest, AwaitingAnAbsoluteReadingChangesNothing)
{
    lcd.RefreshVirtualLcd(); // an ordinary reading first
    c.DIGIT_FRAME.SetVisible(false);
    s.AwaitingAbsoluteReading = true;
    s.CountValue = 5;
    s.IsPositive = false;
    s.UnitLabel = "mV";
    s.FunctionKind = 9;
    SetByte(8, 0x31);
    SetByte(3, 0x03);
    lcd.RefreshVirtualLcd();
    EXPECT_EQ(c.DIGIT_LBL.Caption(), "12.34");
    EXPECT_EQ(c.MODE_LBL.Caption(), "V");
    EXPECT_FALSE(c.NEG_LBL.Visible());
    EXPECT_EQ(
        c.BATTERY_LBL.Caption() + c.AUTO_LBL.Caption() + c.HOLD_LBL.Caption() + c.FUNCTION_LBL.Caption(), "");
    EXPECT_FALSE(c.MIN_LBL.Visible());
    EXPECT_FALSE(c.DIGIT_FRAME.Visible());
}

} // namespace
} // namespace ventrix::display
