#include "app/MainForm.h"
#include "io/DataDirectoryLock.h"
#include "io/ModalGate.h"
#include "io/QtSerialPortAdapter.h"
#include "io/StandardAppPaths.h"
#include "io/SystemClock.h"
#include "io/WorkbookPath.h"
#include "io/XlsxSpreadsheet.h"
#include "platform/MainControls.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "ui/DialKnob.h"
#include "ui/HelpWindow.h"
#include "ui/MainWindow.h"
#include "ui/PanelStyle.h"
#include "ui/QtDialogs.h"
#include "ui/QtPrinter.h"
#include "ui/QtShell.h"
#include "ui/QwtGraphAdapter.h"
#include "ui/QwtPrintSurface.h"
#include "ui/ToolIcons.h"
#include "ui/WorkbookHandover.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QStatusBar>

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
    // Two loggers on one data directory would overwrite each other's swap file.
    io::DataDirectoryLock lock(paths.ProgramDirectory());
    if (!lock.TryLock()) {
        QMessageBox::warning(
            nullptr, QStringLiteral("Ventrix"), QString::fromStdString(lock.RefusalMessage()));
        return 1;
    }
    ui::QtShell shell;

    state::AppState state;
    platform::MainControls controls;
    ui::MainWindow window(controls, gate);
    ui::QtDialogs dialogs(gate, &window);
    shell.SetStatusBar(window.statusBar());

    // The export's workbook goes to the documents folder, opens in the spreadsheet application
    // and is named in the status bar.
    io::XlsxSpreadsheet spreadsheet(
        [&paths] { return io::WorkbookPath::NewWorkbook(paths.ProgramDirectory()); },
        ui::WorkbookHandover(window.statusBar()));
    // The hidden picture box picPRINT holds the graph captured for the printer.
    QLabel fallbackPicture;
    auto* picPRINT = window.findChild<QLabel*>(QStringLiteral("picPRINT"));
    QLabel& picture = picPRINT != nullptr ? *picPRINT : fallbackPicture;
    ui::QwtPrintSurface graphPrint(window.Graph(), picture);
    ui::QtPrinter printer(picture);
    dialogs.SetPrinter(&printer.Device());

    platform::Services services { serial, window.Timers(), clock, dialogs, window.Graph(), window.Knob(),
        spreadsheet, printer, paths, shell, graphPrint };
    app::MainForm form(state, controls, services);
    window.SetCloseHandler([&form](int& cancel) { form.Form_Unload(cancel); });
    window.WatchState(state);
    form.SetOnFrameAccepted([&window] { window.FrameArrived(); });
    shell.SetOnEnd([&window] { window.CloseWithoutAsking(); });
    ui::HelpWindow help(QString::fromStdString(paths.HelpDirectory().string()));
    shell.SetOnHelp([&help](platform::HelpView view) { help.Show(view); });

    form.Form_Load();
    // Developer setting: VENTRIX_SIMULATOR_MS=<interval> feeds the log and the graph from the frame
    // simulator on DEBUG_TIMER, without a meter. Stop switches it off.
    if (const int simulatorMs = qEnvironmentVariableIntValue("VENTRIX_SIMULATOR_MS"); simulatorMs > 0) {
        services.timers.DEBUG_TIMER.SetInterval(simulatorMs);
        services.timers.DEBUG_TIMER.SetEnabled(true);
    }
    window.show();
    return QApplication::exec();
}
