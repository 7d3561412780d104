#include "log/MemoryGauge.h"

#include <gtest/gtest.h>

namespace ventrix::log {
namespace {

TEST(MemoryGaugeTest, TextAndValueFollowTheLogAndTheInterval)
{
    struct Case {
        std::int16_t swapPages, pageFill;
        double intervalMs;
        bool full;
        const char* text;
        double used; // samples, for the expected value
    };
    const Case cases[] = {
        { 0, 1, 1000, false, "5 Days 0 Hr 0 Min", 0 },
        { 0, 1, 3000, false, "5 Days 0 Hr 0 Min", 0 }, // no menu interval: counted as 1 s
        { 0, 2, 1000, false, "4 Days 23 Hrs 59 Mins", 1 },
        { 341, 941, 1000, false, "1 Day 1 Hr 1 Min", 341940 },
        { 258, 901, 5000, false, "10 Days 0 Hr 25 Mins", 258900 },
        { 412, 201, 1000, false, " 5 Hrs 30 Mins", 412200 },
        { 428, 401, 1000, false, " 1 Hr 0 Min", 428400 },
        { 431, 942, 1000, false, "0 Min", 431941 },
        { 432, 1, 1000, true, "0 Min", 432000 },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        state::AppState state;
        state.SwapPageCount = c.swapPages;
        state.PageFill = c.pageFill;
        state.SampleIntervalMs = c.intervalMs;
        state.IsBufferFull = c.full;
        platform::SlideBar bar("MEMORY_BAR");
        MemoryGauge(state, bar).UpdateMemoryGauge();
        EXPECT_EQ(bar.Caption(), c.text);
        EXPECT_NEAR(bar.Value(), 100.0 - c.used / 4320.0, 1e-9);
    }
}

} // namespace
} // namespace ventrix::log
