#pragma once

#include <string>

namespace ventrix::graph {

// The number texts of the graph. Rounding is half away from zero on the value's first 15
// significant digits, as the program's number patterns round.

// value with at least minDecimals and at most maxDecimals decimals ("0" is 0/0, "0.0####" 1/5).
std::string FormatDecimals(double value, int minDecimals, int maxDecimals);

// A cursor readout: the value scaled by its exponent in "0.000E+00" notation and written with
// one to five decimals and a prefix letter: 0.0123 -> "12.3m", 4700 -> "4.7K", 1e-12 -> "1.0P".
// Exponents from -11 down and from 13 up all take the "P" row (value x 1e12).
std::string FormatEngineering(double value);

// An amplitude-axis label: at most three decimals and an SI prefix ("40M", "1.5k", "250m",
// "2.2u", "0"); never an exponent.
std::string FormatAxisLabel(double value);

} // namespace ventrix::graph
