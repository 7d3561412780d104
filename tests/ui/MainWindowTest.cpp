#include "ui/MainWindow.h"
#include "app/MainForm.h"
#include "fakes/TestRig.h"
#include "io/ModalGate.h"
#include "io/TestSupport.h"
#include "ui/DialKnob.h"
#include "ui/QtShell.h"
#include "ui/QwtGraphAdapter.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

namespace ventrix::ui {
namespace {

struct WindowRig {
    io::ModalGate gate;
    platform::MainControls controls;
    MainWindow window { controls, gate };

    template <typename T = QObject> T* Find(const char* name)
    {
        return window.findChild<T*>(QString::fromLatin1(name));
    }
};

TEST(MainWindowTest, EveryNamedControlHasItsWidget)
{
    WindowRig rig;
    const auto unbound = rig.window.UnboundControls();
    EXPECT_TRUE(unbound.empty()) << "first unbound: " << (unbound.empty() ? "" : unbound[0]);
    EXPECT_NE(rig.Find<DialKnob>("KNOB_ANALOG"), nullptr);
    EXPECT_NE(rig.Find<QwtGraphAdapter>("GRAPH_CWGraph"), nullptr);
    for (const char* name :
        { "HScroll", "VScroll", "UNLINK_TIMER", "SAMPLE_TIMER", "ANALOG_TIMER", "DEBUG_TIMER" })
        EXPECT_NE(rig.Find(name), nullptr) << name;
    // Check items of the option menu show a check box.
    for (const char* checkable : { "COM1", "SEC60", "WIDTH3", "DASH_DOT", "EDIAMOND", "FILL", "Grid" })
        EXPECT_TRUE(rig.Find<QAction>(checkable)->isCheckable()) << checkable;
    EXPECT_FALSE(rig.Find<QAction>("MENU_START")->isCheckable());
}

TEST(MainWindowTest, ModelChangesShowInTheirWidgets)
{
    WindowRig rig;
    auto& c = rig.controls;

    c.MAIN_FRM.SetCaption("Ventrix 1.0");
    EXPECT_EQ(rig.window.windowTitle(), "Ventrix 1.0");
    c.CMD_STOP.SetEnabled(false);
    EXPECT_FALSE(rig.Find<QToolButton>("CMD_STOP")->isEnabled());
    c.MENU_STOP.SetEnabled(false);
    EXPECT_FALSE(rig.Find<QAction>("MENU_STOP")->isEnabled());
    c.COM.SetEnabled(false);
    EXPECT_FALSE(rig.Find<QMenu>("COM")->menuAction()->isEnabled());

    EXPECT_TRUE(rig.Find<QAction>("WIDTH3")->isChecked()) << "the initial check marks are shown";
    c.WIDTH_ITEMS[3].SetChecked(false);
    c.WIDTH_ITEMS[1].SetChecked(true);
    EXPECT_FALSE(rig.Find<QAction>("WIDTH3")->isChecked());
    EXPECT_TRUE(rig.Find<QAction>("WIDTH1")->isChecked());

    c.NEG_LBL.SetVisible(false);
    EXPECT_TRUE(rig.Find<QLabel>("NEG_LBL")->isHidden());

    c.AMPLITUDE_COMBO.AddItem("AUTO Amplitude Scale");
    c.AMPLITUDE_COMBO.AddItem("4n");
    c.AMPLITUDE_COMBO.SetListIndex(1);
    auto* amplitude = rig.Find<QComboBox>("AMPLITUDE_COMBO");
    ASSERT_EQ(amplitude->count(), 2);
    EXPECT_EQ(amplitude->itemText(1), "4n");
    EXPECT_EQ(amplitude->currentIndex(), 1);
    c.AMPLITUDE_COMBO.Clear();
    EXPECT_EQ(amplitude->count(), 0);

    c.MEMORY_BAR.SetValue(42.6);
    c.MEMORY_BAR.SetCaption("7199 Min");
    EXPECT_EQ(rig.Find<QProgressBar>("MEMORY_BAR")->value(), 43);
    EXPECT_EQ(rig.Find<QProgressBar>("MEMORY_BAR")->text(), "7199 Min");

    auto* log = rig.Find<QPlainTextEdit>("DATA_LOG_TXT");
    EXPECT_TRUE(log->isReadOnly());
    c.DATA_LOG_TXT.SetText("10:00:00 AM        1.234 V\r\n10:00:01 AM        25.0 °C\r\n");
    c.DATA_LOG_TXT.SetCaret(c.DATA_LOG_TXT.Text().size());
    EXPECT_EQ(log->toPlainText().toStdString(), "10:00:00 AM        1.234 V\n10:00:01 AM        25.0 °C\n");
    EXPECT_EQ(log->textCursor().position(), log->toPlainText().size())
        << "caret counted in bytes, shown in chars";

    // A tool bar button is hidden through its tool bar action.
    c.CMD_EXCEL.SetVisible(false);
    auto* excel = rig.Find<QToolButton>("CMD_EXCEL");
    auto* bar = qobject_cast<QToolBar*>(excel->parentWidget());
    ASSERT_NE(bar, nullptr);
    bool hidden = false;
    for (QAction* action : bar->actions())
        hidden |= bar->widgetForAction(action) == excel && !action->isVisible();
    EXPECT_TRUE(hidden);
}

TEST(MainWindowTest, UserActionsReachTheModelsAndTheModelHasTheLastWord)
{
    WindowRig rig;
    auto& c = rig.controls;
    int plays = 0;
    c.CMD_PLAY.SetOnClick([&] { ++plays; });
    rig.Find<QToolButton>("CMD_PLAY")->click();
    EXPECT_EQ(plays, 1);
    c.CMD_PLAY.SetEnabled(false);
    rig.Find<QToolButton>("CMD_PLAY")->click();
    EXPECT_EQ(plays, 1) << "a disabled control does not reach its handler";

    // The model decides the check marks: an exclusive group handler, as the option menu has.
    for (std::size_t i = 0; i < c.COM_ITEMS.size(); ++i)
        c.COM_ITEMS[i].SetOnClick([&c, i] {
            for (std::size_t k = 0; k < c.COM_ITEMS.size(); ++k)
                c.COM_ITEMS[k].SetChecked(k == i);
        });
    rig.Find<QAction>("COM3")->trigger();
    EXPECT_TRUE(c.COM_ITEMS[2].Checked());
    EXPECT_FALSE(c.COM_ITEMS[0].Checked());
    EXPECT_FALSE(rig.Find<QAction>("COM1")->isChecked());
    rig.Find<QAction>("COM3")->trigger(); // clicking the checked entry keeps it checked
    EXPECT_TRUE(rig.Find<QAction>("COM3")->isChecked());
    // An entry without a handler does not get a check mark from Qt alone.
    rig.Find<QAction>("FILL")->trigger();
    EXPECT_FALSE(c.FILL.Checked());
    EXPECT_FALSE(rig.Find<QAction>("FILL")->isChecked());

    c.GRAPH_MODE_COMBO.AddItem("Zoom");
    c.GRAPH_MODE_COMBO.AddItem("Pan");
    c.GRAPH_MODE_COMBO.AddItem("Cursor");
    c.GRAPH_MODE_COMBO.SetListIndex(0);
    int selections = 0;
    c.GRAPH_MODE_COMBO.SetOnSelect([&] { ++selections; });
    auto* mode = rig.Find<QComboBox>("GRAPH_MODE_COMBO");
    mode->setCurrentIndex(2);
    emit mode->activated(2); // what a user's choice raises
    EXPECT_EQ(c.GRAPH_MODE_COMBO.ListIndex(), 2);
    EXPECT_EQ(selections, 1);
    mode->setCurrentIndex(0); // a programmatic change is not a user's choice
    EXPECT_EQ(c.GRAPH_MODE_COMBO.ListIndex(), 2);
    // A handler that puts the list back, as a list locked during some state would.
    c.GRAPH_MODE_COMBO.SetOnSelect([&] { c.GRAPH_MODE_COMBO.SetListIndex(2); });
    mode->setCurrentIndex(1);
    emit mode->activated(1);
    EXPECT_EQ(c.GRAPH_MODE_COMBO.ListIndex(), 2);
    EXPECT_EQ(mode->currentIndex(), 2);
}

// Through the real window and shell: No keeps the window open; Yes ends the program from inside
// the close request, in the running event loop, and the window closes without asking again.
TEST(MainWindowTest, TheCloseQuestionKeepsOrClosesTheWindow)
{
    fakes::TestRig fakes;
    io::ModalGate gate;
    MainWindow window(fakes.controls, gate);
    QtShell shell;
    shell.SetOnEnd([&] { window.CloseWithoutAsking(); });
    platform::Services services { fakes.serial,
        { fakes.unlinkTimer, fakes.sampleTimer, fakes.analogTimer, fakes.debugTimer }, fakes.clock,
        fakes.dialogs, fakes.graph, fakes.knob, fakes.spreadsheet, fakes.printer, fakes.paths, shell,
        fakes.graphPrint };
    app::MainForm form(fakes.state, fakes.controls, services);
    window.SetCloseHandler([&form](int& cancel) { form.Form_Unload(cancel); });
    form.Form_Load();
    window.show();
    fakes.dialogs.answers = { platform::MessageResult::No, platform::MessageResult::Yes };
    window.close();
    EXPECT_TRUE(window.isVisible());

    bool closed = false;
    QTimer::singleShot(0, [&] { closed = window.close(); });
    QTimer timeout;
    QObject::connect(&timeout, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    timeout.start(5000);
    EXPECT_EQ(QApplication::exec(), 0) << "the event loop was left with exit code 0";
    EXPECT_TRUE(closed);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(fakes.dialogs.boxes.size(), 2u) << "asked once per close request";
}

} // namespace
} // namespace ventrix::ui
