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

    // Frame bytes numbered as received, 2 to 8.
    void SetByte(int byteNumber, std::uint8_t value)
    {
        s.FrameData[static_cast<std::size_t>(8 - byteNumber)] = value;
    }

    fakes::TestRig rig;
    app::AppState& s = rig.state;
    platform::MainControls& c = rig.controls;
    VirtualLcd lcd { rig.state, rig.controls };
};

TEST_F(VirtualLcdTest, ShowsDigitsUnitAndSign)
{
    s.IsPositive = false;
    lcd.RefreshVirtualLcd();
    EXPECT_EQ(c.DIGIT_LBL.Caption(), "12.34");
    EXPECT_EQ(c.MODE_LBL.Caption(), "V");
    EXPECT_TRUE(c.NEG_LBL.Visible());

    s.IsPositive = true;
    lcd.RefreshVirtualLcd();
    EXPECT_FALSE(c.NEG_LBL.Visible());
}

TEST_F(VirtualLcdTest, WordIsShownEvenWhenTheCountHoldsANumber)
{
    s.HasWord = true;
    s.DisplayWord = "OPEn";
    s.CountValue = 4000;
    lcd.RefreshVirtualLcd();
    EXPECT_EQ(c.DIGIT_LBL.Caption(), "OPEn");

    s.DisplayWord = " OF ";
    lcd.RefreshVirtualLcd();
    EXPECT_EQ(c.DIGIT_LBL.Caption(), " OF ") << "the word is shown unchanged, blanks included";
}

TEST_F(VirtualLcdTest, AnnunciatorsSwitchByCaptionNotVisibility)
{
    SetByte(8, 0x31);
    lcd.RefreshVirtualLcd();
    EXPECT_EQ(c.BATTERY_LBL.Caption(), "BAT");
    EXPECT_EQ(c.AUTO_LBL.Caption(), "AUTO");
    EXPECT_EQ(c.HOLD_LBL.Caption(), "HOLD");

    SetByte(8, 0x08); // the minus sign alone lights none of them
    lcd.RefreshVirtualLcd();
    for (const platform::Label* label : { &c.BATTERY_LBL, &c.AUTO_LBL, &c.HOLD_LBL }) {
        EXPECT_EQ(label->Caption(), "") << label->Name();
        EXPECT_TRUE(label->Visible()) << label->Name();
    }
}

TEST_F(VirtualLcdTest, MinIsHiddenWithoutTouchingItsCaption)
{
    c.MIN_LBL.SetCaption("earlier");
    lcd.RefreshVirtualLcd();
    EXPECT_FALSE(c.MIN_LBL.Visible());
    EXPECT_EQ(c.MIN_LBL.Caption(), "earlier");
}

// The function annunciator: the first matching rule wins, and DIODE and REL hide MIN while
// MAX leaves it as the MIN bit says.
struct FunctionCase {
    const char* what;
    std::uint8_t functionKind;
    std::uint8_t byte7;
    std::uint8_t byte3;
    const char* function;
    bool minVisible;
};

class VirtualLcdFunctionTest : public VirtualLcdTest, public ::testing::WithParamInterface<FunctionCase> { };

TEST_P(VirtualLcdFunctionTest, PicksOneWordAndSetsMin)
{
    const FunctionCase& fc = GetParam();
    s.FunctionKind = fc.functionKind;
    SetByte(7, fc.byte7);
    SetByte(3, fc.byte3);
    c.FUNCTION_LBL.SetCaption("stale");
    lcd.RefreshVirtualLcd();
    EXPECT_EQ(c.FUNCTION_LBL.Caption(), fc.function) << fc.what;
    EXPECT_EQ(c.MIN_LBL.Visible(), fc.minVisible) << fc.what;
    if (fc.byte3 & 0x01) {
        EXPECT_EQ(c.MIN_LBL.Caption(), "MIN") << fc.what;
    }
}

INSTANTIATE_TEST_SUITE_P(Rules, VirtualLcdFunctionTest,
    ::testing::Values(FunctionCase { "nothing", 0, 0x00, 0x00, "", false },
        FunctionCase { "min alone", 0, 0x00, 0x01, "", true },
        FunctionCase { "rel with min", 0, 0x00, 0x03, "REL", false },
        FunctionCase { "rel alone", 4, 0x00, 0x02, "REL", false },
        FunctionCase { "max with min", 0, 0x08, 0x01, "MAX", true },
        FunctionCase { "max over rel", 0, 0x08, 0x02, "MAX", false },
        FunctionCase { "max over rel with min", 0, 0x08, 0x03, "MAX", true },
        FunctionCase { "diode with min", 9, 0x00, 0x01, "DIODE", false },
        FunctionCase { "diode over max", 9, 0x08, 0x01, "DIODE", false },
        FunctionCase { "diode over rel", 9, 0x00, 0x02, "DIODE", false },
        FunctionCase { "digit bits of byte 7 are not max", 0, 0xF7, 0x00, "", false }));

TEST_F(VirtualLcdTest, RefreshShowsTheFrameAgain)
{
    c.DIGIT_FRAME.SetVisible(false);
    lcd.RefreshVirtualLcd();
    EXPECT_TRUE(c.DIGIT_FRAME.Visible());
}

TEST_F(VirtualLcdTest, AwaitingAnAbsoluteReadingChangesNothing)
{
    lcd.RefreshVirtualLcd(); // an ordinary reading first
    c.DIGIT_FRAME.SetVisible(false);

    s.AwaitingAbsoluteReading = true;
    s.CountValue = 5;
    s.DecimalDivisor = 1;
    s.IsPositive = false;
    s.UnitLabel = "mV";
    s.FunctionKind = 9;
    SetByte(8, 0x31);
    SetByte(3, 0x03);
    lcd.RefreshVirtualLcd();

    EXPECT_EQ(c.DIGIT_LBL.Caption(), "12.34");
    EXPECT_EQ(c.MODE_LBL.Caption(), "V");
    EXPECT_FALSE(c.NEG_LBL.Visible());
    EXPECT_EQ(c.BATTERY_LBL.Caption(), "");
    EXPECT_EQ(c.AUTO_LBL.Caption(), "");
    EXPECT_EQ(c.HOLD_LBL.Caption(), "");
    EXPECT_FALSE(c.MIN_LBL.Visible());
    EXPECT_EQ(c.FUNCTION_LBL.Caption(), "");
    EXPECT_FALSE(c.DIGIT_FRAME.Visible());
}

} // namespace
} // namespace ventrix::display
