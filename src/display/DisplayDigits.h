#pragma once

#include "state/AppState.h"

#include <string>

namespace ventrix::display {

// The meter's digit text for a count and a decimal divisor (1, 10, 100, 1000): leading zeros
// dropped (four at most), "0" before a leading point; "0" for any other divisor. No sign.
std::string FormatDisplayDigits(double countValue, int decimalDivisor);
// The same for the current reading.
std::string FormatDisplayDigits(const state::AppState& state);

} // namespace ventrix::display
