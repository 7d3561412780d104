// The window as a user meets it, offscreen: the real window, dialogs and dial, the form and its
// handlers, and fakes only for the serial line, the timers and the graph's data.
#include "app/MainForm.h"
#include "fakes/TestRig.h"
#include "io/ModalGate.h"
#include "io/TestSupport.h"
#include "ui/DialKnob.h"
#include "ui/LcdPanel.h"
#include "ui/MainWindow.h"
#include "ui/MeterStatus.h"
#include "ui/QtDialogs.h"
#include "ventrix-cli/FrameEncoder.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

#include <map>

namespace ventrix::ui {
namespace {

using namespace std::chrono_literals;

struct LiveWindow {
    explicit LiveWindow(QSize size)
    {
        window.WatchState(rig.state);
        form.SetOnFrameAccepted([this] { window.FrameArrived(); });
        form.Form_Load();
        window.resize(size);
        window.show();
        Settle();
    }

    // Lets the layout run to its end, as the event loop would between user actions.
    void Settle()
    {
        for (int i = 0; i < 4; ++i)
            QApplication::processEvents();
    }

    // The meter sends one display; the dial's timer takes its step.
    void Receive(const cli::MeterDisplay& display)
    {
        std::string error;
        const auto frame = cli::EncodeFrame(display, error);
        ASSERT_TRUE(frame) << error;
        rig.serial.Feed(std::string(frame->begin(), frame->end()));
        rig.analogTimer.Fire();
        Settle();
    }

    template <typename T = QWidget> T* Find(const char* name)
    {
        return window.findChild<T*>(QString::fromLatin1(name));
    }

    fakes::TestRig rig;
    io::ModalGate gate;
    MainWindow window { rig.controls, gate };
    QtDialogs dialogs { gate, &window };
    platform::Services services { rig.serial,
        { rig.unlinkTimer, rig.sampleTimer, rig.analogTimer, rig.debugTimer }, rig.clock, dialogs, rig.graph,
        window.Knob(), rig.spreadsheet, rig.printer, rig.paths, rig.shell, rig.graphPrint };
    app::MainForm form { rig.state, rig.controls, services };
};

const cli::MeterDisplay kVolts { .mode = 0, .text = "1.234", .autoRange = true };

// Readings without a needle hide the dial: nothing else may move or change size, at any of the
// sizes a user is likely to have, and those sizes need no scroll bars. A window smaller than the
// panel's minimum scrolls instead of squeezing.
TEST(WindowLayoutTest, PanelsKeepTheirPlaceWhenTheDialHides)
{
    const char* const watched[] = { "METER_GROUP", "LOG_GROUP", "GRAPH_GROUP", "DIGIT_FRAME", "KNOB_ANALOG",
        "DATA_LOG_TXT", "MEMORY_BAR", "GRAPH_CWGraph", "GRAPH_MODE_COMBO", "Y1_Y2_VAL_LBL" };
    const cli::MeterDisplay noNeedle[] = {
        { .mode = 20, .text = "OPEn" }, // continuity
        { .mode = 21, .text = " 123" }, // transistor gain
        { .mode = 24, .text = " HI " }, // logic
        { .mode = 22, .text = "0.500" }, // the second volts function
    };
    for (QSize size : { QSize(1280, 800), QSize(1024, 700), QSize(800, 600) }) {
        SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
        LiveWindow w(size);
        w.rig.controls.CMD_PLAY.Click();
        w.Receive(kVolts);
        ASSERT_TRUE(w.window.Knob().isVisible());
        std::map<std::string, QRect> before;
        for (const char* name : watched)
            before[name] = QRect(w.Find(name)->mapTo(&w.window, QPoint()), w.Find(name)->size());
        EXPECT_FALSE(w.Find<QScrollBar>("VScroll")->isVisible());
        EXPECT_FALSE(w.Find<QScrollBar>("HScroll")->isVisible());
        const QRect lcd = before["DIGIT_FRAME"];
        EXPECT_NEAR(static_cast<double>(lcd.width()) / lcd.height(), LcdPanel::kAspect, 0.05);
        EXPECT_EQ(before["KNOB_ANALOG"].height(), lcd.height()) << "the dial is as tall as the LCD";

        for (const cli::MeterDisplay& display : noNeedle) {
            SCOPED_TRACE(display.text);
            w.Receive(display);
            EXPECT_TRUE(w.window.Knob().isHidden());
            for (const char* name : watched)
                EXPECT_EQ(QRect(w.Find(name)->mapTo(&w.window, QPoint()), w.Find(name)->size()), before[name])
                    << name;
        }
    }
    LiveWindow small(QSize(640, 420));
    EXPECT_TRUE(small.Find<QScrollBar>("VScroll")->isVisible());
    EXPECT_TRUE(small.Find<QScrollBar>("HScroll")->isVisible());
}

// Old readings must not look live: before the first frame, after Stop and after the meter fell
// silent the LCD and the dial are drawn faded, their captions untouched; the status bar says so.
TEST(WindowLayoutTest, TheReadingFadesWhenStoppedOrSilent)
{
    LiveWindow w(QSize(1024, 700));
    MeterStatus& status = *w.window.Status();
    LcdPanel& lcd = w.window.Lcd();
    DialKnob& dial = w.window.Knob();
    EXPECT_TRUE(lcd.Stale() && dial.Stale());
    EXPECT_FALSE(dial.ScaleShown()) << "no scale or needle before the first reading";
    EXPECT_EQ(status.ActivityText().toStdString(), "Idle");

    w.rig.controls.CMD_PLAY.Click();
    status.Refresh();
    EXPECT_EQ(status.ActivityText().toStdString(), "Acquiring: waiting for the meter");
    w.Receive(kVolts);
    EXPECT_FALSE(lcd.Stale() || dial.Stale());
    EXPECT_TRUE(dial.ScaleShown());
    EXPECT_EQ(status.ActivityText().toStdString(), "Acquiring");

    // Silence: the window's own tick notices it.
    status.SetStaleAfter(40);
    EXPECT_TRUE(testing::SpinUntil([&] { return lcd.Stale() && dial.Stale(); }, 2s));
    EXPECT_EQ(status.ActivityText().toStdString(), "Acquiring: no data for 0 s");
    EXPECT_EQ(w.Find<QLabel>("DIGIT_LBL")->text().toStdString(), "1.234");
    w.Receive(kVolts);
    EXPECT_FALSE(lcd.Stale());

    status.SetStaleAfter(MeterStatus::kStaleAfterMs);
    w.rig.controls.CMD_STOP.Click();
    EXPECT_TRUE(testing::SpinUntil([&] { return lcd.Stale() && dial.Stale(); }, 2s));
    EXPECT_EQ(status.ActivityText().toStdString(), "Idle");
    EXPECT_EQ(w.Find<QLabel>("DIGIT_LBL")->text().toStdString(), "1.234");
    EXPECT_EQ(w.Find<QLabel>("MODE_LBL")->text().toStdString(), "V");
    w.Receive(kVolts); // bytes after Stop do not wake the reading
    status.Refresh();
    EXPECT_TRUE(lcd.Stale());

    w.rig.state.SwapPageCount = 2;
    w.rig.state.PageFill = 35;
    status.Refresh();
    EXPECT_EQ(w.Find<QLabel>("STATUS_SAMPLES")->text().toStdString(), "2034 samples logged");
}

TEST(WindowLayoutTest, ThePortTellsItsDevicePlainly)
{
    const auto describe = [](int number, const char* device) {
        return MeterStatus::DescribePort(number, QString::fromLatin1(device)).toStdString();
    };
    EXPECT_EQ(describe(1, "/dev/pts/4"), "COM 1: virtual meter on /dev/pts/4");
    EXPECT_EQ(describe(2, "/dev/ttyUSB0"), "COM 2: /dev/ttyUSB0");
    EXPECT_EQ(describe(3, ""), "COM 3: no serial device");
}

// Every command can be reached without the mouse: menus by their letters, commands by their
// letters or keys, tool-bar buttons tell the key of the menu entry that does the same, panel
// controls take the focus by Tab; and one of each kind of key really works.
TEST(WindowLayoutTest, EveryCommandIsReachableFromTheKeyboard)
{
    LiveWindow w(QSize(1024, 700));
    std::map<QString, QString> shortcuts; // key -> command, to find a key used twice
    const auto mnemonic = [](const QString& text) { return QKeySequence::mnemonic(text); };
    // An entry is reached by its letter (pressed again where two share it), its key, or, for
    // the alternatives of a list choice, the arrow keys.
    std::function<void(QMenu*)> walk = [&](QMenu* menu) {
        for (QAction* action : menu->actions()) {
            if (action->isSeparator())
                continue;
            SCOPED_TRACE(action->text().toStdString());
            const bool choice = action->actionGroup() != nullptr;
            EXPECT_TRUE(!action->shortcut().isEmpty() || !mnemonic(action->text()).isEmpty() || choice);
            if (!action->shortcut().isEmpty()) {
                const QString key = action->shortcut().toString();
                EXPECT_EQ(shortcuts.count(key), 0u) << key.toStdString() << " twice";
                shortcuts[key] = action->objectName();
            }
            if (action->menu() != nullptr)
                walk(action->menu());
        }
    };
    std::map<QKeySequence, int> titles;
    for (QAction* top : w.window.menuBar()->actions()) {
        ++titles[mnemonic(top->text())];
        walk(top->menu());
    }
    for (const auto& [letter, count] : titles)
        EXPECT_TRUE(!letter.isEmpty() && count == 1) << letter.toString().toStdString();

    for (auto* button : w.Find<QToolBar>("MAIN_TOOLBAR")->findChildren<QToolButton*>()) {
        if (button->objectName().startsWith(QStringLiteral("qt_")))
            continue; // the tool bar's own extension button
        SCOPED_TRACE(button->objectName().toStdString());
        const QString tip = button->toolTip();
        const int open = tip.lastIndexOf(QLatin1Char('('));
        ASSERT_GT(open, 0) << tip.toStdString();
        const QString key = tip.mid(open + 1, tip.size() - open - 2);
        EXPECT_EQ(shortcuts.count(QKeySequence(key).toString()), 1u) << tip.toStdString();
    }
    for (auto* control : w.Find("MAIN_PANEL")->findChildren<QWidget*>()) {
        if (qobject_cast<QPushButton*>(control) == nullptr && qobject_cast<QComboBox*>(control) == nullptr)
            continue;
        SCOPED_TRACE(control->objectName().toStdString());
        EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus);
    }

    // The real keys: F5 starts, Shift+F5 stops, Ctrl+PgUp pages the log, Alt+A and S start.
    QApplication::setActiveWindow(&w.window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w.window));
    QTest::keyClick(&w.window, Qt::Key_F5);
    EXPECT_TRUE(w.rig.state.IsAcquiring);
    QTest::keyClick(&w.window, Qt::Key_F5, Qt::ShiftModifier);
    EXPECT_FALSE(w.rig.state.IsAcquiring);
    int pages = 0;
    w.rig.controls.CMD_PAGEUP.SetEnabled(true);
    w.rig.controls.CMD_PAGEUP.SetOnClick([&] { ++pages; });
    QTest::keyClick(&w.window, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_TRUE(testing::SpinUntil([&] { return pages == 1; }, 2s)) << "a button's key presses it visibly";
    QTest::keyClick(&w.window, Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(testing::SpinUntil([] { return QApplication::activePopupWidget() != nullptr; }, 2s));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_S);
    w.Settle();
    EXPECT_TRUE(w.rig.state.IsAcquiring);
}

TEST(WindowLayoutTest, TheAboutBoxOpensOnceWithTheLicenceNotices)
{
    LiveWindow w(QSize(1024, 700));
    w.Find<QAction>("HELP_ABOUT")->trigger();
    w.Find<QAction>("HELP_ABOUT")->trigger();
    const auto boxes = w.window.findChildren<QDialog*>(QStringLiteral("ABOUT_FRM"));
    ASSERT_EQ(boxes.size(), 1);
    QDialog* about = boxes.front();
    EXPECT_TRUE(about->isVisible());
    EXPECT_EQ(about->windowModality(), Qt::ApplicationModal);
    EXPECT_FALSE(w.gate.IsHeld()) << "the meter goes on while the box is read";
    const QString notices = about->findChild<QTextBrowser*>()->toPlainText();
    for (const char* name :
        { "Qt 5", "LGPLv3", "Qwt License", "libxlsxwriter", "BSD", "DSEG", "SIL Open Font License" })
        EXPECT_TRUE(notices.contains(QString::fromLatin1(name))) << name;
    about->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(w.window.findChildren<QDialog*>(QStringLiteral("ABOUT_FRM")).isEmpty());
}

} // namespace
} // namespace ventrix::ui
