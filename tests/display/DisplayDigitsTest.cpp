#include "display/DisplayDigits.h"

#include <gtest/gtest.h>

namespace ventrix::display {
namespace {

// The examples of the meter's own display; every divisor against small, middle and full counts
// (leading zeros go, a zero stands before the point, the digits after it are always kept); a
// divisor the decoder never gives shows a single zero; halves round to even before the digits
// are taken, but divisor 1 shows the count's own text; a count past four digits keeps its whole
// leading part.
TEST(DisplayDigitsTest, ShowsTheMetersText)
{
    struct Row {
        double count;
        int divisor;
        const char* text;
    };
    const Row rows[] = { { 0, 1, "0" }, { 5, 1, "5" }, { 12, 100, "0.12" }, { 1234, 10, "123.4" },
        { 50, 1000, "0.050" }, { 0, 1000, "0.000" }, { 1234, 100, "12.34" }, { 123, 1000, "0.123" },
        { 1999, 1, "1999" }, { 7, 10, "0.7" }, { 7, 100, "0.07" }, { 7, 1000, "0.007" }, { 0, 10, "0.0" },
        { 0, 100, "0.00" }, { 40, 1, "40" }, { 40, 10, "4.0" }, { 40, 100, "0.40" }, { 40, 1000, "0.040" },
        { 1000, 1, "1000" }, { 1000, 10, "100.0" }, { 1000, 100, "10.00" }, { 1000, 1000, "1.000" },
        { 9999, 10, "999.9" }, { 9999, 100, "99.99" }, { 9999, 1000, "9.999" }, { 305, 10, "30.5" },
        { 1234, 0, "0" }, { 1234, 2, "0" }, { 1234, -10, "0" }, { 1234, 10000, "0" }, { 12.5, 10, "1.2" },
        { 13.5, 10, "1.4" }, { 12.4999, 100, "0.12" }, { 1.5, 1000, "0.002" }, { 12.5, 1, "12.5" },
        { 12345, 100, "123.45" }, { 12345, 1, "12345" } };
    for (const Row& r : rows)
        EXPECT_EQ(FormatDisplayDigits(r.count, r.divisor), r.text) << r.count << " / " << r.divisor;

    state::AppState state; // the reading's own count and divisor
    state.CountValue = 1234;
    state.DecimalDivisor = 1000;
    EXPECT_EQ(FormatDisplayDigits(state), "1.234");
}

} // namespace
} // namespace ventrix::display
