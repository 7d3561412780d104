#include "graph/EngineeringFormat.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace ventrix::graph {

namespace {
constexpr int kSignificantDigits = 15;

// The scaled value is value x multiplier / divisor.
struct EngineeringRow {
    int lowest; // exponents from lowest to highest, inclusive
    int highest;
    double multiplier;
    double divisor;
    const char* suffix;
};
constexpr std::array<EngineeringRow, 6> kEngineeringRows { {
    { 6, 12, 1.0, 1e6, "M" },
    { 3, 5, 1.0, 1e3, "K" },
    { -1, 2, 1.0, 1.0, "" },
    { -4, -2, 1e3, 1.0, "m" },
    { -7, -5, 1e6, 1.0, "u" },
    { -10, -8, 1e9, 1.0, "n" },
} };
constexpr double kPicoScale = 1e12;

constexpr std::array<const char*, 10> kSiPrefixes { "f", "p", "n", "u", "m", "", "k", "M", "G", "T" };
constexpr int kLowestSiExponent = -15;
constexpr int kHighestSiExponent = 12;
} // namespace

std::string FormatDecimals(double value, int minDecimals, int maxDecimals)
{
    if (!std::isfinite(value))
        return std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf";

    // The value's decimal digits d1 d2 ... d15 and the power of ten of d1.
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.*e", kSignificantDigits - 1, value);
    const bool negative = buffer[0] == '-';
    const char* p = buffer + (negative ? 1 : 0);
    std::string digits;
    for (; *p != 'e'; ++p)
        if (*p != '.')
            digits.push_back(*p);
    int exponent = static_cast<int>(std::strtol(p + 1, nullptr, 10));
    if (value == 0.0)
        exponent = 0;

    // Round to maxDecimals decimals: keep the digits down to 10^-maxDecimals.
    const int keep = exponent + 1 + maxDecimals;
    if (keep < 0) {
        digits = "0";
        exponent = 0;
    } else if (keep < static_cast<int>(digits.size())) {
        const bool up = digits[static_cast<std::size_t>(keep)] >= '5';
        digits.resize(static_cast<std::size_t>(keep));
        if (up) {
            int i = keep - 1;
            for (; i >= 0 && digits[static_cast<std::size_t>(i)] == '9'; --i)
                digits[static_cast<std::size_t>(i)] = '0';
            if (i >= 0) {
                ++digits[static_cast<std::size_t>(i)];
            } else {
                digits.insert(digits.begin(), '1');
                ++exponent;
            }
        }
        if (digits.empty()) {
            digits = "0";
            exponent = 0;
        }
    }

    // Place the decimal point: digit k (0-based) stands for 10^(exponent - k).
    std::string whole;
    std::string fraction;
    for (int power = std::max(exponent, 0); power >= -maxDecimals; --power) {
        const int index = exponent - power;
        const char digit = index >= 0 && index < static_cast<int>(digits.size())
            ? digits[static_cast<std::size_t>(index)]
            : '0';
        (power >= 0 ? whole : fraction).push_back(digit);
    }
    while (static_cast<int>(fraction.size()) > minDecimals && fraction.back() == '0')
        fraction.pop_back();

    const bool zero = whole.find_first_not_of('0') == std::string::npos
        && fraction.find_first_not_of('0') == std::string::npos;
    std::string text = negative && !zero ? "-" : "";
    text += whole;
    if (!fraction.empty())
        text += "." + fraction;
    return text;
}

std::string FormatEngineering(double value)
{
    // The exponent is the last three characters of the value written as "0.000E+00".
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.3E", value);
    const std::string text = buffer;
    const int exponent
        = text.size() >= 3 ? static_cast<int>(std::strtol(text.c_str() + text.size() - 3, nullptr, 10)) : 0;

    double scaled = value * kPicoScale;
    const char* suffix = "P";
    for (const EngineeringRow& row : kEngineeringRows) {
        if (exponent >= row.lowest && exponent <= row.highest) {
            scaled = value * row.multiplier / row.divisor;
            suffix = row.suffix;
            break;
        }
    }
    return FormatDecimals(scaled, 1, 5) + suffix;
}

std::string FormatAxisLabel(double value)
{
    if (value == 0.0 || !std::isfinite(value))
        return FormatDecimals(value, 0, 3);
    int exponent = static_cast<int>(std::floor(std::log10(std::abs(value)) / 3.0)) * 3;
    exponent = std::clamp(exponent, kLowestSiExponent, kHighestSiExponent);
    for (;;) {
        const double scaled = value / std::pow(10.0, exponent);
        const std::string mantissa = FormatDecimals(scaled, 0, 3);
        // 999.9996k rounds to 1000k: write it as 1M instead.
        if (std::abs(std::round(scaled * 1000.0)) >= 1e6 && exponent < kHighestSiExponent) {
            exponent += 3;
            continue;
        }
        return mantissa + kSiPrefixes[static_cast<std::size_t>((exponent - kLowestSiExponent) / 3)];
    }
}

} // namespace ventrix::graph
