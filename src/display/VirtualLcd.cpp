#include "display/VirtualLcd.h"

#include "display/DisplayDigits.h"

#include <cstdint>

namespace ventrix::display {

namespace {

// Frame bytes are numbered 1 to 9 as received; FrameData holds bytes 8 down to 2.
bool FrameBit(const state::AppState& state, int byteNumber, std::uint8_t mask)
{
    return (state.FrameData[static_cast<std::size_t>(8 - byteNumber)] & mask) != 0;
}

} // namespace

VirtualLcd::VirtualLcd(const state::AppState& state, platform::MainControls& controls)
    : m_state(state)
    , m_controls(controls)
{
}

void VirtualLcd::RefreshVirtualLcd()
{
    const state::AppState& s = m_state;
    platform::MainControls& c = m_controls;

    // A relative reading taken before any absolute one is not shown: the LCD keeps its content.
    if (s.AwaitingAbsoluteReading)
        return;

    c.NEG_LBL.SetVisible(!s.IsPositive);
    c.DIGIT_LBL.SetCaption(s.HasWord ? s.DisplayWord : FormatDisplayDigits(s));
    c.MODE_LBL.SetCaption(s.UnitLabel);

    // Annunciators are switched by their caption; only the minus sign and MIN use visibility.
    c.BATTERY_LBL.SetCaption(FrameBit(s, 8, 0x20) ? "BAT" : "");
    c.AUTO_LBL.SetCaption(FrameBit(s, 8, 0x01) ? "AUTO" : "");
    c.HOLD_LBL.SetCaption(FrameBit(s, 8, 0x10) ? "HOLD" : "");

    if (FrameBit(s, 3, 0x01)) {
        c.MIN_LBL.SetCaption("MIN");
        c.MIN_LBL.SetVisible(true);
    } else {
        c.MIN_LBL.SetVisible(false);
    }

    // One word at most on the function annunciator; DIODE and REL suppress MIN, MAX does not.
    if (s.FunctionKind == 9) {
        c.FUNCTION_LBL.SetCaption("DIODE");
        c.MIN_LBL.SetVisible(false);
    } else if (FrameBit(s, 7, 0x08)) {
        c.FUNCTION_LBL.SetCaption("MAX");
    } else if (FrameBit(s, 3, 0x02)) {
        c.FUNCTION_LBL.SetCaption("REL");
        c.MIN_LBL.SetVisible(false);
    } else {
        c.FUNCTION_LBL.SetCaption("");
    }

    c.DIGIT_FRAME.SetVisible(true);
}

} // namespace ventrix::display
