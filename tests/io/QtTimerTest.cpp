#include "io/QtTimer.h"
#include "io/EventLoopHelpers.h"
#include "io/ModalGate.h"
#include "ui/QtDialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

namespace ventrix::io {
namespace {

using testing::SpinEvents;

struct TimerRig {
    ModalGate gate;
    QtTimer timer { gate, QStringLiteral("SAMPLE_TIMER") };
    int ticks = 0;
    TimerRig()
    {
        timer.SetOnTick([this] { ++ticks; });
    }
};

TEST(QtTimerTest, TicksOnlyWhileEnabledWithAPositiveInterval)
{
    TimerRig rig;
    rig.timer.SetInterval(5);
    SpinEvents(40);
    EXPECT_EQ(rig.ticks, 0) << "a disabled timer ticked";

    rig.timer.SetEnabled(true);
    SpinEvents(200, [&] { return rig.ticks >= 3; });
    EXPECT_GE(rig.ticks, 3);

    rig.timer.SetInterval(0);
    const int before = rig.ticks;
    SpinEvents(40);
    EXPECT_EQ(rig.ticks, before) << "an interval of 0 must never tick";
    EXPECT_TRUE(rig.timer.Enabled());

    rig.timer.SetInterval(5);
    SpinEvents(200, [&] { return rig.ticks > before; });
    EXPECT_GT(rig.ticks, before) << "a new interval on an enabled timer restarts it";
}

TEST(QtTimerTest, SettingTheIntervalRestartsTheCountdown)
{
    TimerRig rig;
    rig.timer.SetInterval(60);
    rig.timer.SetEnabled(true);
    // Keep restarting before the countdown can run out: no tick may come.
    for (int i = 0; i < 6; ++i) {
        SpinEvents(25);
        rig.timer.SetInterval(60);
    }
    EXPECT_EQ(rig.ticks, 0);
}

TEST(QtTimerTest, TicksDuringAHeldGateRunOnceAfterwards)
{
    TimerRig rig;
    rig.timer.SetInterval(5);
    rig.timer.SetEnabled(true);
    int ticksWhileHeld = -1;
    rig.gate.Hold([&] {
        SpinEvents(60);
        ticksWhileHeld = rig.ticks;
    });
    EXPECT_EQ(ticksWhileHeld, 0);
    EXPECT_EQ(rig.ticks, 1) << "the held-back ticks run once when the box closes";
}

TEST(QtTimerTest, DisablingOrRestartingDropsAHeldTick)
{
    for (bool disable : { true, false }) {
        TimerRig rig;
        rig.timer.SetInterval(5);
        rig.timer.SetEnabled(true);
        rig.gate.Hold([&] {
            SpinEvents(30);
            if (disable)
                rig.timer.SetEnabled(false);
            else
                rig.timer.SetInterval(10000);
        });
        EXPECT_EQ(rig.ticks, 0) << (disable ? "disabled" : "restarted");
    }
}

TEST(QtTimerTest, NoTickRunsWhileAMessageBoxIsOpen)
{
    TimerRig rig;
    ui::QtDialogs dialogs(rig.gate);
    rig.timer.SetInterval(5);
    rig.timer.SetEnabled(true);
    int ticksWhileOpen = -1;
    // Answer the box after the timer has fired several times behind it.
    testing::WhenModalShown<QMessageBox>(
        [&](QMessageBox* box) {
            ticksWhileOpen = rig.ticks;
            box->button(QMessageBox::No)->click();
        },
        80);
    const auto answer = dialogs.MessageBox("No data for more than 10sec, Continue?",
        platform::MessageButtons::YesNo, platform::MessageIcon::Question, "Warning");
    EXPECT_EQ(answer, platform::MessageResult::No);
    EXPECT_EQ(ticksWhileOpen, 0);
    EXPECT_EQ(rig.ticks, 1);
}

} // namespace
} // namespace ventrix::io
