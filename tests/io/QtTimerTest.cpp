#include "io/QtTimer.h"
#include "io/ModalGate.h"
#include "io/TestSupport.h"
#include "ui/QtDialogs.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>

namespace ventrix::io {
namespace {

using namespace std::chrono_literals;
using testing::Spin;
using testing::SpinUntil;

struct TimerRig {
    ModalGate gate;
    QtTimer timer { gate, QStringLiteral("SAMPLE_TIMER") };
    int ticks = 0;
    explicit TimerRig(int interval, bool enabled = true)
    {
        timer.SetOnTick([this] { ++ticks; });
        timer.SetInterval(interval);
        timer.SetEnabled(enabled);
    }
};

TEST(QtTimerTest, TicksOnlyWhileEnabledWithAPositiveInterval)
{
    TimerRig rig(5, false);
    Spin(40ms);
    EXPECT_EQ(rig.ticks, 0) << "a disabled timer ticked";

    rig.timer.SetEnabled(true);
    EXPECT_TRUE(SpinUntil([&] { return rig.ticks >= 3; }, 200ms));

    rig.timer.SetInterval(0);
    const int before = rig.ticks;
    Spin(40ms);
    EXPECT_EQ(rig.ticks, before) << "an interval of 0 must never tick";
    EXPECT_TRUE(rig.timer.Enabled());

    rig.timer.SetInterval(5);
    EXPECT_TRUE(SpinUntil([&] { return rig.ticks > before; }, 200ms))
        << "a new interval on an enabled timer restarts it";

    // Disabling and enabling restarts the countdown: restarted before it runs out, it never
    // ticks. Re-arming with the same interval, as the frame path does on every frame, keeps the
    // countdown, so the timer still ticks however often it is re-armed.
    rig.timer.SetInterval(60);
    const int restarted = rig.ticks;
    for (int i = 0; i < 6; ++i) {
        Spin(25ms);
        rig.timer.SetEnabled(false);
        rig.timer.SetEnabled(true);
    }
    EXPECT_EQ(rig.ticks, restarted);
    for (int i = 0; i < 6; ++i) {
        Spin(25ms);
        rig.timer.SetInterval(60);
        rig.timer.SetEnabled(true);
    }
    EXPECT_GT(rig.ticks, restarted);
}

TEST(QtTimerTest, TicksBehindAMessageBoxRunOnceWhenItCloses)
{
    TimerRig rig(5);
    ui::QtDialogs dialogs(rig.gate);
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
    EXPECT_EQ(rig.ticks, 0) << "a held-back tick must not run inside the handler that asked";
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(rig.ticks, 1) << "the held-back ticks run once, from the event loop, after the box";
}

TEST(QtTimerTest, DisablingOrRestartingDropsAHeldTick)
{
    for (bool disable : { true, false }) {
        TimerRig rig(5);
        rig.gate.Hold([&] {
            Spin(30ms);
            disable ? rig.timer.SetEnabled(false) : rig.timer.SetInterval(10000);
        });
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(rig.ticks, 0) << (disable ? "disabled" : "restarted");
    }
}

} // namespace
} // namespace ventrix::io
