#include "display/DisplayDigits.h"

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

namespace ventrix::display {

namespace {

// The plain decimal text of a number: whole numbers without a point ("5", "1234"), other
// values with as many digits as they need ("12.5").
std::string PlainNumberText(double value)
{
    if (!std::isfinite(value))
        return "0";
    char buffer[40];
    if (value == std::trunc(value) && std::fabs(value) < 1e15)
        std::snprintf(buffer, sizeof buffer, "%lld", static_cast<long long>(value));
    else
        std::snprintf(buffer, sizeof buffer, "%.15g", value);
    return buffer;
}

// The count as a whole number, halves going to the even neighbour; values that no 64-bit
// integer holds are pinned to its ends.
std::int64_t RoundHalfEven(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double kLimit = 9.0e18;
    if (value >= kLimit)
        return static_cast<std::int64_t>(kLimit);
    if (value <= -kLimit)
        return -static_cast<std::int64_t>(kLimit);
    const int previous = std::fegetround();
    std::fesetround(FE_TONEAREST);
    const double rounded = std::nearbyint(value);
    std::fesetround(previous);
    return static_cast<std::int64_t>(rounded);
}

// The last character of the decimal text of a whole number: one digit of the display.
char LastDigit(std::int64_t value)
{
    const std::string text = std::to_string(value);
    return text.back();
}

} // namespace

std::string FormatDisplayDigits(double countValue, int decimalDivisor)
{
    const std::int64_t n = RoundHalfEven(countValue);
    const std::string thousands = std::to_string(n / 1000);
    const char hundreds = LastDigit(n / 100);
    const char tens = LastDigit(n / 10);
    const char units = LastDigit(n);

    std::string text;
    switch (decimalDivisor) {
    case 1:
        text = PlainNumberText(countValue);
        if (text.size() < 4)
            text.insert(0, 4 - text.size(), '0');
        break;
    case 10:
        text = thousands + hundreds + tens + '.' + units;
        break;
    case 100:
        text = thousands + hundreds + '.' + tens + units;
        break;
    case 1000:
        text = thousands + '.' + hundreds + tens + units;
        break;
    default:
        break;
    }

    // The meter blanks its leading zeros, but never more than four and never past the point.
    for (int i = 0; i < 4 && !text.empty() && text.front() == '0'; ++i)
        text.erase(0, 1);
    if (text.empty() || text.front() == '.')
        text.insert(0, 1, '0');
    return text;
}

std::string FormatDisplayDigits(const state::AppState& state)
{
    return FormatDisplayDigits(state.CountValue, state.DecimalDivisor);
}

} // namespace ventrix::display
