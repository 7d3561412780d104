#include "ventrix-cli/CaptureJson.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace ventrix::cli {

namespace {

using Json = nlohmann::ordered_json; // members stay in the order written

// Whole numbers print without a fraction ("4000", not "4000.0"); others in the shortest form that
// reads back to the same double; NaN and infinities, which JSON cannot hold, as null.
Json Number(double value)
{
    if (!std::isfinite(value))
        return nullptr;
    if (value == std::trunc(value) && std::fabs(value) < 9.0e15)
        return static_cast<long long>(value);
    return value;
}

} // namespace

std::string CaptureFrameJson(const link::CaptureReplay::Frame& frame)
{
    const state::AppState& s = frame.state;
    const platform::MainControls& c = frame.controls;

    Json lcd { { "DIGIT_LBL", c.DIGIT_LBL.Caption() }, { "NEG_LBL", c.NEG_LBL.Visible() },
        { "MODE_LBL", c.MODE_LBL.Caption() }, { "HOLD_LBL", c.HOLD_LBL.Caption() },
        { "AUTO_LBL", c.AUTO_LBL.Caption() }, { "BATTERY_LBL", c.BATTERY_LBL.Caption() },
        { "MIN_LBL", c.MIN_LBL.Visible() }, { "FUNCTION_LBL", c.FUNCTION_LBL.Caption() } };

    Json line { { "offset", Number(static_cast<double>(frame.offset)) }, { "mode", s.ModeByte },
        { "FunctionKind", s.FunctionKind }, { "UnitLabel", s.UnitLabel }, { "BaseUnit", s.BaseUnit },
        { "UnitMultiplier", Number(s.UnitMultiplier) }, { "DecimalDivisor", s.DecimalDivisor },
        { "CountValue", Number(s.CountValue) }, { "IsPositive", s.IsPositive },
        { "IsRelative", s.IsRelative }, { "HasWord", s.HasWord },
        { "DisplayWord", s.HasWord ? Json(s.DisplayWord) : Json(nullptr) }, { "refused", frame.refused },
        { "logged", frame.logged }, { "lcd", lcd } };
    // A byte that is not valid UTF-8 becomes U+FFFD, so the line stays valid JSON.
    return line.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace ventrix::cli
