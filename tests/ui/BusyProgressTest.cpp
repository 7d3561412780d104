#include "ui/QtShell.h"

#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>
#include <QTimer>
#include <gtest/gtest.h>

namespace ventrix::ui {
namespace {

// The bar shows only while the pointer is busy, is drawn without running other events, and goes
// with the busy pointer.
TEST(BusyProgress, ShownWhileBusyWithoutRunningOtherEvents)
{
    QMainWindow window;
    window.show();
    QtShell shell;
    shell.SetStatusBar(window.statusBar());
    auto* bar = window.statusBar()->findChild<QProgressBar*>(QStringLiteral("PROGRESS_BAR"));
    ASSERT_NE(bar, nullptr);

    shell.ShowProgress(1, 2);
    EXPECT_TRUE(bar->isHidden());
    bool otherEventRan = false;
    QTimer::singleShot(0, [&] { otherEventRan = true; });
    shell.SetBusyPointer(true);
    shell.ShowProgress(1000, 2000);
    EXPECT_FALSE(bar->isHidden());
    EXPECT_EQ(bar->value(), 50);
    EXPECT_GT(bar->width(), 0);
    EXPECT_FALSE(otherEventRan);
    shell.SetBusyPointer(false);
    EXPECT_TRUE(bar->isHidden());
}

} // namespace
} // namespace ventrix::ui
