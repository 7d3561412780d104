#include "display/DisplayDigits.h"

#include <gtest/gtest.h>

#include <string>

namespace ventrix::display {
namespace {

struct DigitsCase {
    double count;
    int divisor;
    const char* text;
};

class DisplayDigitsTest : public ::testing::TestWithParam<DigitsCase> { };

TEST_P(DisplayDigitsTest, ShowsTheMetersText)
{
    const DigitsCase& c = GetParam();
    EXPECT_EQ(FormatDisplayDigits(c.count, c.divisor), c.text)
        << "count " << c.count << " divisor " << c.divisor;
}

// The examples of the meter's own display.
INSTANTIATE_TEST_SUITE_P(Examples, DisplayDigitsTest,
    ::testing::Values(DigitsCase { 0, 1, "0" }, DigitsCase { 5, 1, "5" }, DigitsCase { 12, 100, "0.12" },
        DigitsCase { 1234, 10, "123.4" }, DigitsCase { 50, 1000, "0.050" }, DigitsCase { 0, 1000, "0.000" },
        DigitsCase { 1234, 100, "12.34" }, DigitsCase { 123, 1000, "0.123" },
        DigitsCase { 1999, 1, "1999" }));

// Every divisor against small, middle and full counts: leading zeros go, a zero stands
// before the point, and the digits after the point are always kept.
INSTANTIATE_TEST_SUITE_P(DivisorGrid, DisplayDigitsTest,
    ::testing::Values(DigitsCase { 7, 1, "7" }, DigitsCase { 7, 10, "0.7" }, DigitsCase { 7, 100, "0.07" },
        DigitsCase { 7, 1000, "0.007" }, DigitsCase { 0, 10, "0.0" }, DigitsCase { 0, 100, "0.00" },
        DigitsCase { 40, 1, "40" }, DigitsCase { 40, 10, "4.0" }, DigitsCase { 40, 100, "0.40" },
        DigitsCase { 40, 1000, "0.040" }, DigitsCase { 1000, 1, "1000" }, DigitsCase { 1000, 10, "100.0" },
        DigitsCase { 1000, 100, "10.00" }, DigitsCase { 1000, 1000, "1.000" }, DigitsCase { 9999, 1, "9999" },
        DigitsCase { 9999, 10, "999.9" }, DigitsCase { 9999, 100, "99.99" },
        DigitsCase { 9999, 1000, "9.999" }, DigitsCase { 305, 10, "30.5" }, DigitsCase { 305, 1, "305" }));

// A divisor the decoder never gives shows a single zero, whatever the count.
INSTANTIATE_TEST_SUITE_P(UnknownDivisor, DisplayDigitsTest,
    ::testing::Values(DigitsCase { 1234, 0, "0" }, DigitsCase { 1234, 2, "0" }, DigitsCase { 1234, -10, "0" },
        DigitsCase { 1234, 10000, "0" }, DigitsCase { 0, 5, "0" }));

// The count is rounded half to even before the digits are taken; with divisor 1 the count's
// own text is used. A count past four digits keeps its whole leading part.
INSTANTIATE_TEST_SUITE_P(RoundingAndOverflow, DisplayDigitsTest,
    ::testing::Values(DigitsCase { 12.5, 10, "1.2" }, DigitsCase { 13.5, 10, "1.4" },
        DigitsCase { 12.4999, 100, "0.12" }, DigitsCase { 0.5, 1000, "0.000" },
        DigitsCase { 1.5, 1000, "0.002" }, DigitsCase { 12.5, 1, "12.5" }, DigitsCase { 10000, 10, "1000.0" },
        DigitsCase { 12345, 100, "123.45" }, DigitsCase { 12345, 1, "12345" }));

TEST(DisplayDigitsStateTest, ReadsCountAndDivisorOfTheReading)
{
    app::AppState state;
    state.CountValue = 1234;
    state.DecimalDivisor = 1000;
    EXPECT_EQ(FormatDisplayDigits(state), "1.234");
    state.DecimalDivisor = 3;
    EXPECT_EQ(FormatDisplayDigits(state), "0");
}

} // namespace
} // namespace ventrix::display
