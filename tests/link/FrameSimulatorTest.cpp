#include "link/FrameSimulator.h"

#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "fakes/TestRig.h"
#include "link/SerialLink.h"

#include <gtest/gtest.h>

#include <vector>

namespace ventrix::link {
namespace {

struct Simulated {
    fakes::TestRig rig;
    display::VirtualLcd lcd { rig.state, rig.controls };
    display::AnalogGauge gauge { rig.state, rig.knob, rig.analogTimer };
    SerialLink link { rig.state, rig.controls, rig.services, lcd, gauge };
    std::vector<double> appended;
    int plots = 0;
    FrameSimulator simulator { rig.state, link, rig.debugTimer, rig.clock,
        [this] { appended.push_back(rig.state.CountValue); }, [this] { ++plots; } };
};

TEST(FrameSimulator, FeedsARejectedFrameAndASineInRadiansThatWrapsAfter64Ticks)
{
    Simulated sim;
    state::AppState& s = sim.rig.state;
    sim.rig.clock.SetTime(10, 15, 30);
    s.AwaitingAbsoluteReading = false;
    sim.rig.debugTimer.SetEnabled(true);
    for (int tick = 0; tick < 64; ++tick)
        sim.simulator.DebugTimerTick();

    EXPECT_EQ(s.SimulatorPhase, 0); // back where it started
    EXPECT_FALSE(s.HasNewFrame); // the frame never passes validation
    EXPECT_EQ(s.FunctionKind, 255);
    ASSERT_EQ(sim.appended.size(), 64u);
    EXPECT_EQ(sim.appended[0], 776.0); // floor(floor(2000 sin 5.625) + 2000): radians, not degrees
    EXPECT_EQ(sim.appended[63], 2000.0); // phase 0
    EXPECT_EQ(sim.plots, 64);
    EXPECT_DOUBLE_EQ(s.SampleTime, (10 * 3600 + 15 * 60 + 30) / 86400.0);
    EXPECT_EQ(FrameSimulator::SimulatedFrame(), std::string("\x00\x02\x00\xDF\x51\xE3\xD7\x00\x25", 9));
}

TEST(FrameSimulator, NoPlotWhileAwaitingAndSwitchesItselfOffOnAFullLog)
{
    Simulated sim;
    sim.rig.debugTimer.SetEnabled(true);
    sim.rig.debugTimer.SetInterval(5);
    sim.simulator.DebugTimerTick(); // awaiting an absolute reading: logged, not plotted
    EXPECT_EQ(sim.plots, 0);
    EXPECT_TRUE(sim.rig.debugTimer.Enabled());

    sim.rig.state.IsBufferFull = true;
    sim.simulator.DebugTimerTick();
    EXPECT_EQ(sim.appended.size(), 2u); // the tick still appends, then stops the timer
    EXPECT_FALSE(sim.rig.debugTimer.Enabled());
    EXPECT_EQ(sim.rig.debugTimer.Interval(), 200);
}

TEST(FrameSimulator, DebugViewShowsTimeCountAndCharacters)
{
    fakes::TestRig rig;
    rig.clock.SetTime(0, 1, 2.5);
    ShowDebugView(rig.controls.DEBUG_TEXT1, rig.clock, "ab\x01");
    EXPECT_EQ(rig.controls.DEBUG_TEXT1.Text(), "62.50 \t3 \tab\x01");
}

} // namespace
} // namespace ventrix::link
