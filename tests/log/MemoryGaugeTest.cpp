#include "log/MemoryGauge.h"

#include "platform/SlideBar.h"

#include <gtest/gtest.h>

namespace ventrix::log {
namespace {

TEST(MemoryGaugeTest, TextAndValueFollowTheLogAndTheInterval)
{
    struct Case {
        std::int16_t swapPages;
        std::int16_t pageFill;
        double intervalMs;
        const char* text;
        double value;
    };
    // Remaining time = free samples x interval.
    const Case cases[] = {
        { 0, 1, 1000, "5 Days 0 Hr 0 Min", 100.0 },
        { 0, 1, 2000, "10 Days 0 Hr 0 Min", 100.0 },
        { 0, 1, 5000, "25 Days 0 Hr 0 Min", 100.0 },
        { 0, 1, 10000, "50 Days 0 Hr 0 Min", 100.0 },
        { 0, 1, 30000, "150 Days 0 Hr 0 Min", 100.0 },
        { 0, 1, 60000, "300 Days 0 Hr 0 Min", 100.0 },
        { 0, 1, 3000, "5 Days 0 Hr 0 Min", 100.0 }, // an interval of no menu counts as 1 s
        { 0, 2, 1000, "4 Days 23 Hrs 59 Mins", 100.0 - 1.0 / 4320.0 },
        { 341, 941, 1000, "1 Day 1 Hr 1 Min", 100.0 - 341940.0 / 4320.0 },
        { 258, 901, 1000, "2 Days 0 Hr 5 Mins", 100.0 - 258900.0 / 4320.0 },
        { 412, 201, 1000, " 5 Hrs 30 Mins", 100.0 - 412200.0 / 4320.0 },
        { 428, 401, 1000, " 1 Hr 0 Min", 100.0 - 428400.0 / 4320.0 },
        { 431, 881, 1000, " 2 Mins", 100.0 - 431880.0 / 4320.0 },
        { 431, 942, 1000, "0 Min", 100.0 - 431941.0 / 4320.0 },
        { 431, 1001, 1000, "0 Min", 0.0 },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        app::AppState state;
        state.SwapPageCount = c.swapPages;
        state.PageFill = c.pageFill;
        state.SampleIntervalMs = c.intervalMs;
        platform::SlideBar bar("MEMORY_BAR");
        MemoryGauge(state, bar).UpdateMemoryGauge();
        EXPECT_EQ(bar.Caption(), c.text);
        EXPECT_NEAR(bar.Value(), c.value, 1e-9);
    }
}

TEST(MemoryGaugeTest, RedrawsOnlyWhenTheTextChanges)
{
    app::AppState state;
    state.PageFill = 2;
    platform::SlideBar bar("MEMORY_BAR");
    int writes = 0;
    bar.SetObserver([&] { ++writes; });
    MemoryGauge gauge(state, bar);

    gauge.UpdateMemoryGauge();
    EXPECT_EQ(writes, 2); // text and value
    const double value = bar.Value();

    // One more second used: still 4 Days 23 Hrs 59 Mins, so neither text nor value moves.
    state.PageFill = 3;
    gauge.UpdateMemoryGauge();
    EXPECT_EQ(writes, 2);
    EXPECT_EQ(bar.Value(), value);

    // A slower rate changes the text, and with it the value.
    state.SampleIntervalMs = 2000;
    gauge.UpdateMemoryGauge();
    EXPECT_EQ(bar.Caption(), "9 Days 23 Hrs 59 Mins");
    EXPECT_NEAR(bar.Value(), 100.0 - 2.0 / 4320.0, 1e-9);
}

TEST(MemoryGaugeTest, FullBufferShowsNothingLeft)
{
    app::AppState state;
    state.IsBufferFull = true;
    platform::SlideBar bar("MEMORY_BAR");
    bar.SetCaption("0 Min");
    bar.SetValue(55.0);
    MemoryGauge(state, bar).UpdateMemoryGauge();
    EXPECT_EQ(bar.Caption(), "0 Min");
    EXPECT_EQ(bar.Value(), 0.0);
}

} // namespace
} // namespace ventrix::log
