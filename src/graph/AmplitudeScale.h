#pragma once

#include "state/AppState.h"

#include <cstdint>

namespace ventrix::graph {

// The arithmetic of the amplitude axis, as pure functions.

// The current reading in base units (volts, amperes, ohms ...): count / divisor x multiplier,
// negative while the minus sign is lit.
double PlottedValue(const state::AppState& state);

// The precision p of a value's magnitude, by half-open decades: below 1e-9 1e-14, then 1e-11,
// 1e-8, 1e-5 up to 1, 0.01 up to 1000, 10 up to 1e6, 10000 above.
double PrecisionBand(double magnitude);

// A signed reading (DC volts and current, the second volts function, dBm, temperature, or any
// relative reading) gets an amplitude axis symmetric about zero; any other one starts at 0.
bool IsSignedReading(std::uint8_t functionKind, bool isRelative);
bool IsSignedReading(const state::AppState& state);

// Twenty per cent margin outward: the automatic maximum and minimum for data from low to high.
double MarginMaximum(double high);
double MarginMinimum(double low);

} // namespace ventrix::graph
