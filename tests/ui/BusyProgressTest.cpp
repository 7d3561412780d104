#include "ui/QtShell.h"
#include "ui/WorkbookHandover.h"

#include <QDesktopServices>
#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>
#include <QTextBrowser>
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

// The finished workbook goes to the desktop's handler for the file and is named in the status
// bar; one that could not be written is named there too.
TEST(BusyProgress, WorkbookIsOpenedAndNamed)
{
    QStatusBar status;
    QTextBrowser opened; // stands in for the desktop's handler of files
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &opened, "setSource");
    WorkbookHandover handover(&status);
    handover("/tmp/Ventrix export.xlsx", true);
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    EXPECT_EQ(opened.source(), QUrl::fromLocalFile(QStringLiteral("/tmp/Ventrix export.xlsx")));
    EXPECT_EQ(status.currentMessage(), QStringLiteral("Exported to /tmp/Ventrix export.xlsx"));
    handover("/nowhere/x.xlsx", false);
    EXPECT_EQ(status.currentMessage(), QStringLiteral("The workbook /nowhere/x.xlsx could not be written"));
}

} // namespace
} // namespace ventrix::ui
