#include "link/SerialLink.h"

#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "fakes/TestRig.h"
#include "link/MeterBytes.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>

namespace ventrix::link {
namespace {

using platform::MessageButtons;
using platform::MessageIcon;
using platform::MessageResult;
using testing::MeterFrame;
using testing::VoltsReading;
using Box = fakes::ScriptedDialogs::Box;

// The link on fakes, wired as the form wires it.
struct Linked {
    Linked()
    {
        rig.serial.SetOnComm([this] { link.OnComm(); });
        rig.unlinkTimer.SetOnTick([this] { link.UnlinkTimerTick(); });
        rig.debugTimer.SetEnabled(true);
    }
    void Run() // started, one absolute reading received
    {
        link.StartAcquisition();
        rig.serial.Feed(MeterFrame(0, VoltsReading(42)));
    }
    // Commands, port and timers as acquiring or idle leaves them, the input flushes so far, the
    // relative-mode guard and the last box shown.
    void Expect(bool acquiring, int discards, bool awaiting, const std::optional<Box>& box = {}) const
    {
        const auto& c = rig.controls;
        const bool idleControls[] = { c.CMD_PLAY.Enabled(), c.MENU_START.Enabled(), c.COM.Enabled(),
            c.RATE.Enabled(), !c.CMD_STOP.Enabled(), !c.MENU_STOP.Enabled() };
        for (bool enabled : idleControls)
            EXPECT_EQ(enabled, !acquiring) << "play, start, port, rate, !stop, !stop menu";
        EXPECT_EQ(rig.state.IsAcquiring, acquiring);
        EXPECT_EQ(rig.serial.IsOpen(), acquiring);
        EXPECT_EQ(rig.unlinkTimer.Enabled(), acquiring);
        EXPECT_EQ(rig.sampleTimer.Enabled(), acquiring);
        if (!acquiring) {
            EXPECT_FALSE(rig.analogTimer.Enabled());
        }
        EXPECT_EQ(rig.serial.discardCount, discards);
        EXPECT_EQ(rig.state.AwaitingAbsoluteReading, awaiting);
        const auto fields = [](const Box& b) { return std::tie(b.text, b.buttons, b.icon, b.title); };
        if (box) {
            ASSERT_FALSE(rig.dialogs.boxes.empty());
            EXPECT_EQ(fields(rig.dialogs.boxes.back()), fields(*box));
        } else {
            EXPECT_TRUE(rig.dialogs.boxes.empty());
        }
    }
    void ExpectFrameStateReset() const
    {
        EXPECT_EQ(rig.state.FrameResetMarker, 8);
        EXPECT_EQ(rig.state.FrameData, (std::array<std::uint8_t, 7> {}));
        EXPECT_EQ(rig.state.FrameChecksum, 0);
    }

    fakes::TestRig rig;
    display::VirtualLcd lcd { rig.state, rig.controls };
    display::AnalogGauge gauge { rig.state, rig.knob, rig.analogTimer };
    SerialLink link { rig.state, rig.controls, rig.services, lcd, gauge };
};

TEST(SerialLinkTest, StartOpensTheChosenPortArmsTheTimersAndRestartsTheGraph)
{
    Linked t;
    auto& rig = t.rig;
    rig.state.ComPortNumber = 3;
    rig.state.PageFill = 17;
    rig.state.SwapPageCount = 4;
    rig.state.FrameData.fill(0x77);
    rig.state.FrameChecksum = 0x77;
    rig.graph.points = { 1.0, 2.0 };
    t.link.StartAcquisition();

    t.Expect(true, 1, true);
    t.ExpectFrameStateReset();
    EXPECT_EQ(rig.serial.CommPort(), 3);
    EXPECT_EQ(rig.serial.Settings(), "4800,n,8,1");
    EXPECT_EQ(rig.serial.thresholdHistory, "9");
    EXPECT_EQ(rig.unlinkTimer.Interval(), 15000);
    EXPECT_EQ(rig.sampleTimer.Interval(), 200);
    EXPECT_TRUE(rig.graph.points.empty());
    EXPECT_EQ(rig.state.GraphStartSlot, 17);
    EXPECT_EQ(rig.state.GraphStartPage, 4);
    EXPECT_TRUE(rig.state.GraphRestartPending);

    rig.state.GraphRestartPending = false; // a second start only asks for an extrema reset
    t.link.StartAcquisition();
    EXPECT_TRUE(rig.state.GraphRestartPending);
    EXPECT_EQ(rig.serial.openCount, 1);
    EXPECT_EQ(rig.graph.clears, 1);
}

TEST(SerialLinkTest, StartWithAFullLogOrAPortThatWillNotOpenStaysIdle)
{
    Linked full;
    full.rig.serial.Open();
    full.rig.sampleTimer.SetEnabled(true);
    full.rig.controls.COM.SetEnabled(false);
    full.rig.state.IsBufferFull = true;
    full.link.StartAcquisition();
    full.Expect(false, 0, true,
        Box { "Buffer Full! Please reset buffer before continue.", MessageButtons::Ok, MessageIcon::None,
            "Ventrix" });
    EXPECT_EQ(full.rig.unlinkTimer.Interval(), 15000);
    EXPECT_EQ(full.rig.graph.clears, 0);

    Linked fails;
    fails.rig.state.ComPortNumber = 3;
    fails.rig.serial.failOpen = true;
    fails.link.StartAcquisition();
    fails.Expect(false, 1, true,
        Box { "Cannot open COM 3!", MessageButtons::Ok, MessageIcon::Exclamation, "Ventrix" });
    EXPECT_EQ(
        fails.rig.unlinkTimer.restarts + fails.rig.sampleTimer.restarts + fails.rig.analogTimer.restarts, 0);
    EXPECT_EQ(fails.rig.graph.clears, 0);
}

// Stop flushes the input and awaits an absolute reading; a lost link asks whether to go on, and
// No stops without the flush, the guard or touching the simulator timer.
TEST(SerialLinkTest, StopAndLinkLoss)
{
    Linked stop;
    stop.Run();
    stop.link.StopAcquisition();
    stop.Expect(false, 3, true);
    EXPECT_EQ(stop.rig.serial.closeCount, 1);
    EXPECT_EQ(stop.rig.unlinkTimer.Interval(), 15000);
    EXPECT_FALSE(stop.rig.debugTimer.Enabled());
    EXPECT_EQ(stop.rig.debugTimer.Interval(), 200);

    // Yes, or a box closed without an answer, goes on and counts 15 s from the answer; only No
    // stops.
    for (MessageResult answer : { MessageResult::Yes, MessageResult::Dismissed, MessageResult::No }) {
        Linked t;
        t.Run();
        t.rig.dialogs.answers = { answer };
        const int restarts = t.rig.unlinkTimer.restarts;
        t.rig.unlinkTimer.Fire();
        EXPECT_EQ(t.rig.unlinkTimer.restarts, restarts + (answer == MessageResult::No ? 0 : 1));
        t.Expect(answer != MessageResult::No, 2, false,
            Box { "No data for more than 10sec, Continue?", MessageButtons::YesNo, MessageIcon::Question,
                "Warning" });
        EXPECT_TRUE(t.rig.debugTimer.Enabled());
        if (answer == MessageResult::No)
            t.ExpectFrameStateReset();
    }
}

TEST(SerialLinkTest, RelativeModeStopsOnlyBeforeAnAbsoluteReading)
{
    Linked first;
    first.link.StartAcquisition();
    first.rig.serial.Feed(MeterFrame(0, VoltsReading(1234, false, true)));
    first.Expect(false, 3, true,
        Box { "Please disable relative mode before acquiring data", MessageButtons::Ok,
            MessageIcon::Exclamation, "Warning" });
    EXPECT_EQ(first.rig.state.CountValue, 1234); // stopped after decoding

    Linked later;
    later.Run();
    later.rig.serial.Feed(MeterFrame(0, VoltsReading(3, false, true)));
    later.Expect(true, 3, false);
}

// Offsets 0 to 3 are tried, never 4, and the frame is stored as the decoder reads it; a
// candidate with a right checksum but bytes no mode allows is passed over for the next offset.
TEST(SerialLinkTest, AcceptsAFrameAtTheFirstFourOffsetsOnly)
{
    Linked t;
    t.link.StartAcquisition();
    const std::string frame = MeterFrame(0, VoltsReading(5678, true));
    for (int p = 0; p <= 5; ++p) {
        t.rig.state.HasNewFrame = false;
        t.rig.state.SignedCount = 0;
        t.link.AssembleFrame(std::string(static_cast<std::size_t>(p), '\0') + frame);
        EXPECT_EQ(t.link.AcceptedOffset(), p <= 3 ? p : -1) << "offset " << p;
        EXPECT_EQ(t.rig.state.HasNewFrame, p <= 3) << "offset " << p;
        EXPECT_EQ(t.rig.state.SignedCount, p <= 3 ? -5678 : 0) << "offset " << p;
    }
    unsigned sum = 57; // a lead byte that gives the candidate at offset 0 a right checksum
    for (int i = 0; i < 7; ++i)
        sum += static_cast<std::uint8_t>(frame[static_cast<std::size_t>(i)]);
    const std::string received
        = static_cast<char>((static_cast<std::uint8_t>(frame[7]) - sum) & 0xFF) + frame;
    ASSERT_EQ(ComputeChecksum(received, 0), static_cast<std::uint8_t>(received[8]));
    t.link.AssembleFrame(received);
    EXPECT_EQ(t.link.AcceptedOffset(), 1);
}

TEST(SerialLinkTest, EventsWithoutAFrameToggleTheThresholdAndAFrameResetsIt)
{
    Linked t;
    auto& serial = t.rig.serial;
    t.link.StartAcquisition();
    const std::string frame = MeterFrame(0, VoltsReading(5678));
    std::string badSum = frame;
    badSum[8] = static_cast<char>(badSum[8] + 1);
    const std::string badMode = MeterFrame(0, testing::With(VoltsReading(5678), 8, 0x00)); // no 0x02 bit
    for (const std::string& received : { frame.substr(0, 8), std::string(), badSum, badMode }) {
        const int restarts = t.rig.unlinkTimer.restarts;
        const int discards = serial.discardCount;
        t.link.AssembleFrame(received);
        EXPECT_EQ(t.link.AcceptedOffset(), -1);
        EXPECT_FALSE(t.rig.state.HasNewFrame);
        EXPECT_EQ(serial.discardCount, discards + 1);
        EXPECT_GT(t.rig.unlinkTimer.restarts, restarts); // supervision restarted even so
        EXPECT_TRUE(t.rig.unlinkTimer.Enabled());
    }
    EXPECT_EQ(serial.thresholdHistory, "9A9A9");
    serial.Feed(std::string(9, '\x55')); // nothing found: 10 next
    serial.Feed('\x55' + frame); // 10 bytes, the frame at offset 1
    EXPECT_EQ(t.link.AcceptedOffset(), 1);
    EXPECT_EQ(serial.InBufferCount(), 0);
    EXPECT_EQ(serial.thresholdHistory, "9A9A9AH9"); // 18 - (10 mod 9) = 17, then 9
    serial.Feed(frame);
    EXPECT_EQ(serial.thresholdHistory, "9A9A9AH9"); // already 9: not written again
}

TEST(SerialLinkTest, MisalignedStreamFallsBackInStepWithinAFewEvents)
{
    const std::string frame = MeterFrame(0, VoltsReading(4321));
    for (int shift = 0; shift < 9; ++shift) {
        Linked t;
        int count = 0;
        int firstAccepted = -1;
        int lastMissed = -1;
        t.rig.serial.SetOnComm([&] {
            t.link.OnComm();
            if (t.link.AcceptedOffset() < 0)
                lastMissed = count;
            else if (firstAccepted < 0)
                firstAccepted = count;
            ++count;
        });
        t.link.StartAcquisition();
        t.rig.serial.Feed(std::string(static_cast<std::size_t>(shift), '\xAA'));
        for (int i = 0; i < 40; ++i)
            t.rig.serial.Feed(frame);
        // The event boundary walks one byte per two events: at most 16 events (17 frames).
        EXPECT_GE(firstAccepted, 0) << "shift " << shift;
        EXPECT_LE(firstAccepted, 16) << "shift " << shift;
        EXPECT_LT(lastMissed, firstAccepted) << "once in step it stays in step, shift " << shift;
    }
}

TEST(SerialLinkTest, OnlyReceiveEventsWhileAcquiringAreAssembled)
{
    Linked t;
    auto& serial = t.rig.serial;
    serial.SetRThreshold(9);
    serial.Feed(MeterFrame(0, VoltsReading(7))); // idle: drained and ignored
    EXPECT_EQ(serial.InBufferCount(), 0);
    EXPECT_FALSE(t.rig.state.HasNewFrame);
    EXPECT_EQ(t.rig.unlinkTimer.restarts, 0);

    t.link.StartAcquisition();
    serial.SetRThreshold(100); // keep the fed bytes buffered
    serial.Feed(MeterFrame(0, VoltsReading(7)));
    for (int code : { 1, 3, 7, 1001, 1010 }) {
        serial.RaiseEvent(code);
        EXPECT_EQ(serial.InBufferCount(), 9) << "event " << code;
        EXPECT_FALSE(t.rig.state.HasNewFrame) << "event " << code;
    }
    serial.RaiseEvent(platform::SerialPort::kEvReceive);
    EXPECT_TRUE(t.rig.state.HasNewFrame);
}

} // namespace
} // namespace ventrix::link
