#include "graph/AmplitudeScale.h"

#include <array>
#include <cmath>
#include <utility>

namespace ventrix::graph {

namespace {
// (lower bound of the band, precision), highest band first.
constexpr std::array<std::pair<double, double>, 6> kPrecisionBands { {
    { 1e6, 10000.0 },
    { 1000.0, 10.0 },
    { 1.0, 0.01 },
    { 1e-3, 1e-5 },
    { 1e-6, 1e-8 },
    { 1e-9, 1e-11 },
} };
constexpr double kFinestPrecision = 1e-14;
} // namespace

double PlottedValue(const state::AppState& state)
{
    const double value = state.CountValue / state.DecimalDivisor * state.UnitMultiplier;
    return state.IsPositive ? value : -value;
}

double PrecisionBand(double magnitude)
{
    for (const auto& [lowest, precision] : kPrecisionBands)
        if (magnitude >= lowest)
            return precision;
    return kFinestPrecision;
}

bool IsSignedReading(std::uint8_t functionKind, bool isRelative)
{
    switch (functionKind) {
    case 0: // DC volts
    case 2: // DC current
    case 12: // the second volts function
    case 13: // dBm
    case 14: // temperature
        return true;
    default:
        return isRelative;
    }
}

bool IsSignedReading(const state::AppState& state)
{
    return IsSignedReading(state.FunctionKind, state.IsRelative);
}

double MarginMaximum(double high)
{
    return high < 0.0 ? high * 0.8 : high * 1.2;
}

double MarginMinimum(double low)
{
    return low < 0.0 ? low * 1.2 : low * 0.8;
}

} // namespace ventrix::graph
