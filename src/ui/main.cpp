#include "app/MainForm.h"
#include "io/ModalGate.h"
#include "io/QtSerialPortAdapter.h"
#include "io/StandardAppPaths.h"
#include "io/SystemClock.h"
#include "platform/MainControls.h"
#include "platform/Services.h"
#include "platform/UnavailablePrinter.h"
#include "platform/UnavailableSpreadsheet.h"
#include "state/AppState.h"
#include "ui/DialKnob.h"
#include "ui/MainWindow.h"
#include "ui/PanelStyle.h"
#include "ui/QtDialogs.h"
#include "ui/QtShell.h"
#include "ui/QwtGraphAdapter.h"
#include "ui/ToolIcons.h"

#include <QApplication>

using namespace ventrix;

// The composition root: builds the adapters, the window and the form, runs start-up, and hands
// control to the event loop.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    // No organisation name: the data directory is then ".../Ventrix" itself.
    QApplication::setApplicationName(QStringLiteral("Ventrix"));
    QApplication::setApplicationVersion(QStringLiteral("1.0"));
    ui::PanelStyle::Apply(application);
    QApplication::setWindowIcon(ui::ToolIcons::Application());

    io::ModalGate gate;
    io::QtSerialPortAdapter serial(gate);
    io::SystemClock clock;
    io::StandardAppPaths paths;
    platform::UnavailableSpreadsheet spreadsheet;
    platform::UnavailablePrinter printer;
    ui::QtShell shell;

    state::AppState state;
    platform::MainControls controls;
    ui::MainWindow window(controls, gate);
    ui::QtDialogs dialogs(gate, &window);

    platform::Services services { serial, window.Timers(), clock, dialogs, window.Graph(), window.Knob(),
        spreadsheet, printer, paths, shell };
    app::MainForm form(state, controls, services);
    window.SetCloseHandler([&form](int& cancel) { form.Form_Unload(cancel); });
    window.WatchState(state);
    form.SetOnFrameAccepted([&window] { window.FrameArrived(); });
    shell.SetOnEnd([&window] { window.CloseWithoutAsking(); });

    form.Form_Load();
    window.show();
    return QApplication::exec();
}
