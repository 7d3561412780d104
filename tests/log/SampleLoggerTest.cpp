#include "fakes/AcquiringRig.h"
#include "log/SampleRecord.h"
#include "log/SwapFile.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ventrix::log {
namespace {

struct Logging : ::testing::Test, fakes::AcquiringRig {
    // One tick of SAMPLE_TIMER at the given time, with a new frame unless told otherwise.
    void Tick(int h, int m, double sec, bool frame = true)
    {
        rig.clock.SetTime(h, m, sec);
        rig.state.HasNewFrame = frame;
        rig.sampleTimer.Fire();
    }
    long long Samples() const { return state::LoggedSamples(rig.state); }
    int Lines() const
    {
        return static_cast<int>(std::count(
            rig.controls.DATA_LOG_TXT.Text().begin(), rig.controls.DATA_LOG_TXT.Text().end(), '\n'));
    }
};

TEST_F(Logging, DriftCorrectionKeepsSamplesOnTheirDueSeconds)
{
    state::AppState& s = rig.state;
    EXPECT_EQ(rig.sampleTimer.Interval(), 200); // the first tick comes after 200 ms
    Tick(10, 15, 30.8, false); // no frame yet: the due time is set, nothing is logged
    EXPECT_EQ(Samples(), 0);
    Tick(10, 15, 30.85);
    EXPECT_EQ(rig.controls.DATA_LOG_TXT.Text(), "10:15:30 AM    1.234 V\r\n");

    struct Case {
        double second;
        int interval;
        const char* stamped;
    };
    // A phase beyond 0.3 s shortens the next interval by 200 ms; a lag of 300 ms behind the due
    // time by 300 ms, a lag of 2 s by 500 ms at most; a tick on time restores the full interval.
    // Each sample is stamped with its due second.
    for (const Case& c : { Case { 32.1, 700, "10:15:31 AM" }, Case { 32.9, 800, "10:15:32 AM" },
             Case { 33.2, 1000, "10:15:33 AM" }, Case { 37.9, 500, "10:15:34 AM" } }) {
        Tick(10, 15, c.second);
        EXPECT_EQ(rig.sampleTimer.Interval(), c.interval) << c.second;
        EXPECT_EQ(FormatTimeOfDay(s.SampleTime), c.stamped) << c.second;
    }
    Tick(10, 16, 0.0); // more than 4 s late: restamped at the clock, not at the due time
    EXPECT_EQ(FormatTimeOfDay(s.SampleTime), "10:16:00 AM");
    EXPECT_EQ(s.ExpectedTimeText, "10:16:01 AM");
    EXPECT_EQ(Samples(), 6);
}

TEST_F(Logging, MidnightWrapAndRecordsAcrossIt)
{
    state::AppState& s = rig.state;
    s.SampleIntervalMs = 5000;
    Tick(23, 59, 59.0);
    EXPECT_EQ(s.ExpectedTimeText, "12:00:04 AM");
    Tick(0, 0, 4.1);
    EXPECT_EQ(s.PageRecords[1][0], 0); // hour 0 after midnight
    EXPECT_EQ(s.PageRecords[0][0], 23);
    EXPECT_EQ(s.PageRecords[1][2], 4);
}

TEST_F(Logging, PagesFlushToTheSwapFileAndAFullLogStopsOnce)
{
    state::AppState& s = rig.state;
    for (int i = 0; i < 1000; ++i)
        form.Logger().AppendSample();
    EXPECT_EQ(s.SwapPageCount, 1);
    EXPECT_EQ(s.PageFill, 1);
    EXPECT_EQ(Lines(), 1000); // the window still shows the page just written
    EXPECT_EQ(std::filesystem::file_size(rig.paths.SwapFile()), 8000u);
    form.Logger().AppendSample();
    EXPECT_EQ(Lines(), 1); // the next sample starts an empty page
    EXPECT_TRUE(rig.controls.CMD_PAGEUP.Enabled());

    s.SwapPageCount = 431; // the last page fills
    s.PageFill = 1;
    for (int i = 0; i < 1000; ++i)
        form.Logger().AppendSample();
    EXPECT_TRUE(s.IsBufferFull);
    EXPECT_FALSE(s.IsAcquiring);
    EXPECT_FALSE(rig.sampleTimer.Enabled());
    EXPECT_FALSE(rig.serial.IsOpen());
    EXPECT_EQ(rig.controls.MEMORY_BAR.Value(), 0.0);
    EXPECT_EQ(rig.controls.MEMORY_BAR.Caption(), "0 Min");
    EXPECT_TRUE(rig.controls.COM.Enabled());
    const auto full = std::count_if(rig.dialogs.boxes.begin(), rig.dialogs.boxes.end(),
        [](const auto& box) { return box.text == "Buffer Full! Please reset buffer before continue."; });
    EXPECT_EQ(full, 1);
    Tick(1, 0, 0); // no more samples
    EXPECT_EQ(s.SwapPageCount, 432);
    EXPECT_EQ(s.PageFill, 1);
    EXPECT_EQ(std::filesystem::file_size(rig.paths.SwapFile()), 3456000u);
}

TEST_F(Logging, PagingAcrossSwapAndMemoryPagesAndClearing)
{
    state::AppState& s = rig.state;
    platform::MainControls& c = rig.controls;
    for (int i = 0; i < 1010; ++i)
        form.Logger().AppendSample();
    c.CMD_PAGEUP.Click();
    EXPECT_EQ(s.ViewPage, 0);
    EXPECT_EQ(Lines(), 1000);
    EXPECT_EQ(c.DATA_LOG_TXT.Text().substr(0, 25), "12:00:00 AM    1.234 V\r\n1");
    EXPECT_FALSE(c.CMD_PAGEUP.Enabled());
    EXPECT_TRUE(c.CMD_PAGEDOWN.Enabled());
    c.CMD_PAGEDOWN.Click();
    EXPECT_EQ(Lines(), 10);
    EXPECT_FALSE(c.CMD_PAGEDOWN.Enabled());
    const std::string newest = c.DATA_LOG_TXT.Text();
    c.CMD_PAGEDOWN.Click(); // already on the newest page
    EXPECT_EQ(c.DATA_LOG_TXT.Text(), newest);
    EXPECT_EQ(rig.shell.pointerHistory.back(), false);

    s.PageRecords[0][3] = 5; // a word index past the table: that line is left out
    s.PageRecords[0][5] = 77;
    c.CMD_PAGEUP.Click();
    c.CMD_PAGEDOWN.Click();
    EXPECT_EQ(Lines(), 9);

    rig.dialogs.answers.push_back(platform::MessageResult::No);
    c.CMD_RESET.Click();
    EXPECT_EQ(s.SwapPageCount, 1);
    s.IsBufferFull = true;
    c.MAIN_FRM.SetCaption("log.txt - Ventrix 1.0");
    rig.dialogs.answers.push_back(platform::MessageResult::Yes);
    c.CLEAR_LOG.Click();
    EXPECT_EQ(rig.dialogs.boxes.back().text, "Are you sure to clear all memory?");
    EXPECT_EQ(Samples(), 0);
    EXPECT_FALSE(s.IsBufferFull);
    EXPECT_EQ(c.MAIN_FRM.Caption(), "Ventrix 1.0");
    EXPECT_EQ(c.MEMORY_BAR.Caption(), "5 Days 0 Hr 0 Min");
    EXPECT_FALSE(c.CMD_PAGEUP.Enabled());
    EXPECT_FALSE(c.DIGIT_FRAME.Visible());
    EXPECT_TRUE(s.GraphEmpty);
    EXPECT_EQ(s.ViewPage, 1); // left as it was until the next sample
    EXPECT_EQ(std::filesystem::file_size(rig.paths.SwapFile()), 8000u); // neither deleted nor truncated
}

} // namespace
} // namespace ventrix::log
