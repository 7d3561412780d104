#include "graph/EngineeringFormat.h"
#include "graph/AmplitudeScale.h"

#include <gtest/gtest.h>

#include <utility>

namespace ventrix::graph {
namespace {

TEST(EngineeringFormatTest, ReadoutsTakeTheExponentOfFourSignificantDigits)
{
    const std::pair<double, const char*> cases[] = {
        { 999.9, "999.9" }, { 999.99, "0.99999K" }, // "9.9999E+02" rounds to "1.000E+03"
        { 1000.0, "1.0K" }, { 4700.0, "4.7K" }, { 0.5, "0.5" }, { 0.0123, "12.3m" }, { 2.2e-6, "2.2u" },
        { 1.5e-9, "1.5n" }, { 1e-12, "1.0P" }, // pico is a capital P
        { 1e-11, "10.0P" },
        { 1e13, "10000000000000000000000000.0P" }, // 13 and above fall into the pico row too
        { 3.9e6, "3.9M" }, { 0.0, "0.0" }, { -0.0023, "-2.3m" }, { -4700.0, "-4.7K" },
        { 1.234567, "1.23457" }, // five decimals at most
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(FormatEngineering(value), text) << value;
}

TEST(EngineeringFormatTest, AxisLabelsHaveAnSiPrefixAndAtMostThreeDecimals)
{
    const std::pair<double, const char*> cases[] = {
        { 4e7, "40M" },
        { 1500.0, "1.5k" },
        { 0.25, "250m" },
        { 2.2e-6, "2.2u" },
        { 2e-13, "200f" },
        { 0.0, "0" },
        { -0.5, "-500m" },
        { 1.2345678, "1.235" },
        { 999.9996, "1k" },
        { 4e15, "4000T" },
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(FormatAxisLabel(value), text) << value;
    EXPECT_EQ(FormatDecimals(2.5, 0, 0), "3");
    EXPECT_EQ(FormatDecimals(-2.5, 0, 0), "-3");
}

TEST(AmplitudeScaleTest, PrecisionBandsIncludeTheirLowerBound)
{
    const std::pair<double, double> cases[] = { { 0.0, 1e-14 }, { 9.99e-10, 1e-14 }, { 1e-9, 1e-11 },
        { 1e-6, 1e-8 }, { 1e-3, 1e-5 }, { 0.999, 1e-5 }, { 1.0, 0.01 }, { 999.0, 0.01 }, { 1000.0, 10.0 },
        { 1e6, 10000.0 }, { 4e7, 10000.0 } };
    for (const auto& [magnitude, precision] : cases)
        EXPECT_EQ(PrecisionBand(magnitude), precision) << magnitude;
}

} // namespace
} // namespace ventrix::graph
