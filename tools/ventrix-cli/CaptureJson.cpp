#include "ventrix-cli/CaptureJson.h"

#include "ventrix-cli/JsonObject.h"

namespace ventrix::cli {

std::string CaptureFrameJson(const link::CaptureReplay::Frame& frame)
{
    const state::AppState& s = frame.state;
    const platform::MainControls& c = frame.controls;

    JsonObject lcd;
    lcd.Add("DIGIT_LBL", c.DIGIT_LBL.Caption())
        .Add("NEG_LBL", c.NEG_LBL.Visible())
        .Add("MODE_LBL", c.MODE_LBL.Caption())
        .Add("HOLD_LBL", c.HOLD_LBL.Caption())
        .Add("AUTO_LBL", c.AUTO_LBL.Caption())
        .Add("BATTERY_LBL", c.BATTERY_LBL.Caption())
        .Add("MIN_LBL", c.MIN_LBL.Visible())
        .Add("FUNCTION_LBL", c.FUNCTION_LBL.Caption());

    JsonObject line;
    line.Add("offset", static_cast<double>(frame.offset))
        .Add("mode", static_cast<int>(s.ModeByte))
        .Add("FunctionKind", static_cast<int>(s.FunctionKind))
        .Add("UnitLabel", s.UnitLabel)
        .Add("BaseUnit", s.BaseUnit)
        .Add("UnitMultiplier", s.UnitMultiplier)
        .Add("DecimalDivisor", static_cast<int>(s.DecimalDivisor))
        .Add("CountValue", s.CountValue)
        .Add("IsPositive", s.IsPositive)
        .Add("IsRelative", s.IsRelative)
        .Add("HasWord", s.HasWord);
    if (s.HasWord)
        line.Add("DisplayWord", s.DisplayWord);
    else
        line.AddNull("DisplayWord");
    line.Add("refused", frame.refused).Add("logged", frame.logged).Add("lcd", lcd);
    return line.Text();
}

} // namespace ventrix::cli
