#include "display/DisplayDigits.h"

namespace ventrix::display {

// Placeholder until the LCD lands.
std::string FormatDisplayDigits(double, int) { return "0"; }
std::string FormatDisplayDigits(const app::AppState& state)
{
    return FormatDisplayDigits(state.CountValue, state.DecimalDivisor);
}

} // namespace ventrix::display
