#include "link/SerialLink.h"

#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "fakes/TestRig.h"
#include "link/MeterBytes.h"

#include <gtest/gtest.h>

#include <string>

namespace ventrix::link {
namespace {

using platform::MessageButtons;
using platform::MessageIcon;
using platform::MessageResult;
using testing::MeterFrame;
using testing::VoltsReading;

class SerialLinkTest : public ::testing::Test {
protected:
    SerialLinkTest()
    {
        rig.serial.SetOnComm([this] { link.OnComm(); });
        rig.unlinkTimer.SetOnTick([this] { link.UnlinkTimerTick(); });
    }

    void ExpectIdle()
    {
        EXPECT_FALSE(rig.state.IsAcquiring);
        EXPECT_FALSE(rig.serial.IsOpen());
        EXPECT_FALSE(rig.unlinkTimer.Enabled());
        EXPECT_EQ(rig.unlinkTimer.Interval(), 15000);
        EXPECT_FALSE(rig.sampleTimer.Enabled());
        EXPECT_FALSE(rig.analogTimer.Enabled());
        ExpectCommands(false);
        EXPECT_TRUE(rig.controls.COM.Enabled());
        EXPECT_TRUE(rig.controls.RATE.Enabled());
    }
    void ExpectCommands(bool acquiring)
    {
        EXPECT_EQ(rig.controls.CMD_PLAY.Enabled(), !acquiring);
        EXPECT_EQ(rig.controls.MENU_START.Enabled(), !acquiring);
        EXPECT_EQ(rig.controls.CMD_STOP.Enabled(), acquiring);
        EXPECT_EQ(rig.controls.MENU_STOP.Enabled(), acquiring);
    }
    void ExpectFrameStateReset()
    {
        EXPECT_EQ(rig.state.FrameResetMarker, 8);
        EXPECT_EQ(rig.state.FrameData, (std::array<std::uint8_t, 7> {}));
        EXPECT_EQ(rig.state.FrameChecksum, 0);
    }
    void ExpectBox(
        const std::string& text, MessageButtons buttons, MessageIcon icon, const std::string& title)
    {
        ASSERT_EQ(rig.dialogs.boxes.size(), 1u);
        const auto& box = rig.dialogs.boxes.front();
        EXPECT_EQ(box.text, text);
        EXPECT_EQ(box.buttons, buttons);
        EXPECT_EQ(box.icon, icon);
        EXPECT_EQ(box.title, title);
    }

    fakes::TestRig rig;
    display::VirtualLcd lcd { rig.state, rig.controls };
    display::AnalogGauge gauge { rig.state, rig.knob, rig.analogTimer };
    SerialLink link { rig.state, rig.controls, rig.services, lcd, gauge };
};

// ---- start, stop and link loss

TEST_F(SerialLinkTest, StartOpensTheChosenPortAndArmsTheTimers)
{
    rig.state.ComPortNumber = 3;
    rig.state.PageFill = 17;
    rig.state.SwapPageCount = 4;
    rig.state.HasNewFrame = true;
    rig.state.FrameResetMarker = 0;
    rig.state.FrameData.fill(0x77);
    rig.state.FrameChecksum = 0x77;
    rig.graph.points = { 1.0, 2.0 };

    link.StartAcquisition();

    EXPECT_TRUE(rig.state.IsAcquiring);
    ExpectCommands(true);
    EXPECT_FALSE(rig.controls.COM.Enabled());
    EXPECT_FALSE(rig.controls.RATE.Enabled());
    EXPECT_TRUE(rig.serial.IsOpen());
    EXPECT_EQ(rig.serial.CommPort(), 3);
    EXPECT_EQ(rig.serial.Settings(), "4800,n,8,1");
    EXPECT_EQ(rig.serial.inputLen_, 0);
    EXPECT_EQ(rig.serial.thresholdHistory, "9");
    EXPECT_EQ(rig.serial.discardCount, 1);
    EXPECT_TRUE(rig.unlinkTimer.Enabled());
    EXPECT_EQ(rig.unlinkTimer.Interval(), 15000);
    EXPECT_FALSE(rig.analogTimer.Enabled());
    EXPECT_EQ(rig.analogTimer.Interval(), 200);
    EXPECT_TRUE(rig.sampleTimer.Enabled());
    EXPECT_EQ(rig.sampleTimer.Interval(), 200);
    EXPECT_TRUE(rig.state.IntervalCorrected);
    EXPECT_TRUE(rig.state.FirstSampleTickPending);
    EXPECT_TRUE(rig.graph.points.empty());
    EXPECT_EQ(rig.state.GraphStartSlot, 17);
    EXPECT_EQ(rig.state.GraphStartPage, 4);
    EXPECT_TRUE(rig.state.GraphRestartPending);
    EXPECT_FALSE(rig.state.HasNewFrame);
    ExpectFrameStateReset();
    EXPECT_TRUE(rig.dialogs.boxes.empty());

    // A second start only asks for an extrema reset.
    rig.state.GraphRestartPending = false;
    link.StartAcquisition();
    EXPECT_TRUE(rig.state.GraphRestartPending);
    EXPECT_EQ(rig.serial.openCount, 1);
    EXPECT_EQ(rig.graph.clears, 1);
}

TEST_F(SerialLinkTest, StartWithAFullLogClosesThePortAndStaysIdle)
{
    rig.serial.Open();
    rig.sampleTimer.SetEnabled(true);
    rig.controls.COM.SetEnabled(false);
    rig.state.IsBufferFull = true;

    link.StartAcquisition();

    ExpectIdle();
    EXPECT_EQ(rig.serial.openCount, 1);
    EXPECT_EQ(rig.graph.clears, 0);
    ExpectBox("Buffer Full! Please reset buffer before continue.", MessageButtons::Ok, MessageIcon::None,
        "Ventrix");
}

TEST_F(SerialLinkTest, StartFailingToOpenThePortWarnsAndLeavesTheTimersAlone)
{
    rig.state.ComPortNumber = 3;
    rig.serial.failOpen = true;

    link.StartAcquisition();

    EXPECT_FALSE(rig.state.IsAcquiring);
    ExpectCommands(false);
    EXPECT_EQ(rig.unlinkTimer.restarts + rig.sampleTimer.restarts + rig.analogTimer.restarts, 0);
    EXPECT_TRUE(rig.controls.COM.Enabled());
    EXPECT_EQ(rig.graph.clears, 0);
    ExpectBox("Cannot open COM 3!", MessageButtons::Ok, MessageIcon::Exclamation, "Ventrix");
}

TEST_F(SerialLinkTest, StopClosesAndFlushesThePortAndAwaitsAnAbsoluteReading)
{
    link.StartAcquisition();
    rig.serial.Feed(MeterFrame(0, VoltsReading(42)));
    rig.analogTimer.SetEnabled(true);
    rig.debugTimer.SetEnabled(true);
    ASSERT_FALSE(rig.state.AwaitingAbsoluteReading);
    const int discards = rig.serial.discardCount;

    link.StopAcquisition();

    ExpectIdle();
    EXPECT_EQ(rig.serial.closeCount, 1);
    EXPECT_EQ(rig.serial.discardCount, discards + 1);
    EXPECT_TRUE(rig.state.AwaitingAbsoluteReading);
    EXPECT_FALSE(rig.debugTimer.Enabled());
    EXPECT_EQ(rig.debugTimer.Interval(), 200);
}

TEST_F(SerialLinkTest, LinkLossAsksAgainOnYesAndOnNoStopsWithoutFlushingOrTheRelativeGuard)
{
    link.StartAcquisition();
    rig.serial.Feed(MeterFrame(0, VoltsReading(42)));
    rig.debugTimer.SetEnabled(true);
    const int discards = rig.serial.discardCount;
    rig.dialogs.answers = { MessageResult::Yes, MessageResult::No };

    rig.unlinkTimer.Fire();
    EXPECT_TRUE(rig.state.IsAcquiring);
    EXPECT_TRUE(rig.serial.IsOpen());
    EXPECT_TRUE(rig.unlinkTimer.Enabled());
    ExpectBox(
        "No data for more than 10sec, Continue?", MessageButtons::YesNo, MessageIcon::Question, "Warning");

    rig.unlinkTimer.Fire();
    EXPECT_EQ(rig.dialogs.boxes.size(), 2u);
    ExpectIdle();
    ExpectFrameStateReset();
    EXPECT_EQ(rig.serial.discardCount, discards);
    EXPECT_FALSE(rig.state.AwaitingAbsoluteReading);
    EXPECT_TRUE(rig.debugTimer.Enabled());
}

// ---- the receive path

TEST_F(SerialLinkTest, NineByteFrameIsAcceptedStoredAndDecoded)
{
    link.StartAcquisition();
    const std::string frame = MeterFrame(0, VoltsReading(1234, true));
    rig.serial.Feed(frame);

    EXPECT_EQ(link.AcceptedOffset(), 0);
    EXPECT_TRUE(rig.state.HasNewFrame);
    EXPECT_EQ(rig.state.ModeByte, 0);
    for (int k = 2; k <= 8; ++k) // stored reversed: element 0 is byte 8
        EXPECT_EQ(rig.state.FrameData[static_cast<std::size_t>(8 - k)],
            static_cast<std::uint8_t>(frame[static_cast<std::size_t>(k - 1)]))
            << "byte " << k;
    EXPECT_EQ(rig.state.FrameChecksum, static_cast<std::uint8_t>(frame[8]));
    EXPECT_EQ(rig.state.SignedCount, -1234);
    EXPECT_EQ(rig.serial.InBufferCount(), 0);
    EXPECT_EQ(rig.serial.thresholdHistory, "9"); // already 9: not written again
}

TEST_F(SerialLinkTest, AlignmentOffsetsStopAtThree)
{
    link.StartAcquisition();
    const std::string frame = MeterFrame(0, VoltsReading(5678));
    for (int p = 0; p <= 5; ++p) {
        rig.state.HasNewFrame = false;
        link.AssembleFrame(std::string(static_cast<std::size_t>(p), '\0') + frame);
        EXPECT_EQ(link.AcceptedOffset(), p <= 3 ? p : -1) << "offset " << p;
        EXPECT_EQ(rig.state.HasNewFrame, p <= 3) << "offset " << p;
    }
}

TEST_F(SerialLinkTest, ShortOrCorruptEventsAcceptNothingAndToggleTheThreshold)
{
    link.StartAcquisition();
    const std::string frame = MeterFrame(0, VoltsReading(5678));
    std::string badSum = frame;
    badSum[8] = static_cast<char>(badSum[8] + 1);
    const std::string badMode
        = MeterFrame(0, testing::With(VoltsReading(5678), 8, 0x00)); // byte 8 lacks 0x02

    for (const std::string& received : { frame.substr(0, 8), std::string(), badSum, badMode }) {
        const int restarts = rig.unlinkTimer.restarts;
        const int discards = rig.serial.discardCount;
        link.AssembleFrame(received);
        EXPECT_EQ(link.AcceptedOffset(), -1);
        EXPECT_FALSE(rig.state.HasNewFrame);
        EXPECT_EQ(rig.serial.discardCount, discards + 1);
        EXPECT_GT(rig.unlinkTimer.restarts, restarts); // supervision restarted even so
        EXPECT_TRUE(rig.unlinkTimer.Enabled());
    }
    EXPECT_EQ(rig.serial.thresholdHistory, "9A9A9");
}

TEST_F(SerialLinkTest, CandidateWithRightChecksumButWrongModeIsSkippedForTheNextOffset)
{
    const std::string frame = MeterFrame(0, VoltsReading(1111));
    // A lead byte chosen so that the candidate at offset 0 carries a right checksum.
    unsigned sum = 57;
    for (int i = 0; i < 7; ++i)
        sum += static_cast<std::uint8_t>(frame[static_cast<std::size_t>(i)]);
    const std::string received
        = static_cast<char>((static_cast<std::uint8_t>(frame[7]) - sum) & 0xFF) + frame;
    ASSERT_EQ(ComputeChecksum(received, 0), static_cast<std::uint8_t>(received[8]));
    ASSERT_FALSE(ValidateFrame(received, 0));

    link.StartAcquisition();
    link.AssembleFrame(received);
    EXPECT_EQ(link.AcceptedOffset(), 1);
    EXPECT_EQ(rig.state.CountValue, 1111);
}

TEST_F(SerialLinkTest, ThresholdReturnsToNineThroughTheIntermediateValue)
{
    link.StartAcquisition();
    rig.serial.Feed(std::string(9, '\x55')); // nothing found: 10 next
    rig.serial.Feed('\x55' + MeterFrame(0, VoltsReading(2))); // 10 bytes, frame at offset 1
    EXPECT_EQ(link.AcceptedOffset(), 1);
    EXPECT_EQ(rig.serial.thresholdHistory, "9AH9"); // 18 - (10 mod 9) = 17, then 9
}

TEST_F(SerialLinkTest, MisalignedStreamFallsBackInStepWithinAFewEvents)
{
    const std::string frame = MeterFrame(0, VoltsReading(4321));
    int count = 0;
    int firstAccepted = -1;
    int lastMissed = -1;
    rig.serial.SetOnComm([&] {
        link.OnComm();
        if (link.AcceptedOffset() < 0)
            lastMissed = count;
        else if (firstAccepted < 0)
            firstAccepted = count;
        ++count;
    });
    for (int shift = 0; shift < 9; ++shift) {
        count = 0;
        firstAccepted = lastMissed = -1;
        link.StartAcquisition();
        rig.serial.Feed(std::string(static_cast<std::size_t>(shift), '\xAA'));
        for (int i = 0; i < 40; ++i)
            rig.serial.Feed(frame);
        link.StopAcquisition();
        // The event boundary walks one byte per two events: at most 16 events (17 frames).
        EXPECT_GE(firstAccepted, 0) << "shift " << shift;
        EXPECT_LE(firstAccepted, 16) << "shift " << shift;
        EXPECT_LT(lastMissed, firstAccepted) << "once in step it stays in step, shift " << shift;
    }
}

TEST_F(SerialLinkTest, BytesWhileIdleAreDrainedAndIgnored)
{
    rig.serial.SetRThreshold(9);
    rig.serial.Feed(MeterFrame(0, VoltsReading(7)));
    EXPECT_EQ(rig.serial.InBufferCount(), 0);
    EXPECT_FALSE(rig.state.HasNewFrame);
    EXPECT_EQ(rig.unlinkTimer.restarts, 0);
    EXPECT_EQ(rig.serial.thresholdHistory, "9");
}

TEST_F(SerialLinkTest, OnlyTheReceiveEventIsHandled)
{
    link.StartAcquisition();
    rig.serial.SetRThreshold(100); // keep the fed bytes buffered
    rig.serial.Feed(MeterFrame(0, VoltsReading(7)));
    for (int code : { 1, 3, 4, 5, 6, 7, 1001, 1004, 1006, 1008, 1009, 1010, 1011 }) {
        rig.serial.RaiseEvent(code);
        EXPECT_EQ(rig.serial.InBufferCount(), 9) << "event " << code;
        EXPECT_FALSE(rig.state.HasNewFrame) << "event " << code;
    }
    rig.serial.RaiseEvent(platform::SerialPort::kEvReceive);
    EXPECT_TRUE(rig.state.HasNewFrame);
}

TEST_F(SerialLinkTest, RelativeModeAtStartStopsAndWarnsAfterDecoding)
{
    link.StartAcquisition();
    rig.serial.Feed(MeterFrame(0, VoltsReading(1234, false, true)));

    ExpectIdle();
    EXPECT_TRUE(rig.state.AwaitingAbsoluteReading);
    EXPECT_EQ(rig.state.CountValue, 1234);
    ExpectBox("Please disable relative mode before acquiring data", MessageButtons::Ok,
        MessageIcon::Exclamation, "Warning");

    // With an absolute reading first, switching REL on does not stop.
    rig.dialogs.boxes.clear();
    link.StartAcquisition();
    rig.serial.Feed(MeterFrame(0, VoltsReading(1234)));
    rig.serial.Feed(MeterFrame(0, VoltsReading(3, false, true)));
    EXPECT_TRUE(rig.state.IsAcquiring);
    EXPECT_TRUE(rig.dialogs.boxes.empty());
}

} // namespace
} // namespace ventrix::link
