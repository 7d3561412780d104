// A soak of the whole program: the real window, adapters and form, offscreen, fed by the frame
// simulator on DEBUG_TIMER until the log of 432,000 samples is full. Measures the longest stall of
// the event loop while logging, then pages through every swap page, saves the text file and the
// graph, exports the workbook, clears the log and logs again. Only the message and file boxes are
// answered by the program itself. Prints one line per step and exits 1 when a check fails.
//   usage: QtFullLogSoak [--interval-ms N] [--dir DIR]   (run by bench/full-log-soak.sh)

#include "ResidentMemory.h"
#include "app/MainForm.h"
#include "io/ModalGate.h"
#include "io/QtSerialPortAdapter.h"
#include "io/StandardAppPaths.h"
#include "io/SystemClock.h"
#include "io/XlsxSpreadsheet.h"
#include "state/AppState.h"
#include "ui/DialKnob.h"
#include "ui/MainWindow.h"
#include "ui/QtPrinter.h"
#include "ui/QtShell.h"
#include "ui/QwtGraphAdapter.h"
#include "ui/QwtPrintSurface.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

using namespace ventrix;

namespace {

constexpr long long kFullLog = 432000;
constexpr const char* kBufferFull = "Buffer Full! Please reset buffer before continue.";

// Answers every box as a user who agrees would: Yes to each question, the given file for each
// save box. Counts what it was asked.
class AnsweringDialogs : public platform::Dialogs {
public:
    explicit AnsweringDialogs(std::filesystem::path directory)
        : m_directory(std::move(directory))
    {
    }
    platform::MessageResult MessageBox(const std::string& text, platform::MessageButtons buttons,
        platform::MessageIcon, const std::string&) override
    {
        texts.push_back(text);
        return buttons == platform::MessageButtons::YesNo ? platform::MessageResult::Yes
                                                          : platform::MessageResult::Ok;
    }
    std::optional<std::string> ShowOpen(const platform::FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> ShowSave(const platform::FileDialogRequest& request) override
    {
        const bool graph = request.filter.find("gph") != std::string::npos;
        return (m_directory / (graph ? "soak.gph" : "soak.txt")).string();
    }
    std::optional<platform::PrintDialogResult> ShowPrint(int) override { return std::nullopt; }
    void ShowAbout() override { }

    long Count(const std::string& text) const { return std::count(texts.begin(), texts.end(), text); }
    std::vector<std::string> texts;

private:
    std::filesystem::path m_directory;
};

double Megabytes(std::uintmax_t bytes)
{
    return static_cast<double>(bytes) / (1024.0 * 1024.0);
}

std::uintmax_t SizeOf(const std::filesystem::path& file)
{
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    return error ? 0 : size;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    int intervalMs = 1;
    QString dirArgument;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::string(argv[i]) == "--interval-ms")
            intervalMs = std::max(0, std::atoi(argv[i + 1]));
        else if (std::string(argv[i]) == "--dir")
            dirArgument = QString::fromLocal8Bit(argv[i + 1]);
    }
    QTemporaryDir temporary;
    const QString dir = dirArgument.isEmpty() ? temporary.path() : dirArgument;
    qputenv("VENTRIX_DATA_DIR", dir.toLocal8Bit());
    const std::filesystem::path data = dir.toStdString();

    io::ModalGate gate;
    io::QtSerialPortAdapter serial(gate);
    io::SystemClock clock;
    io::StandardAppPaths paths;
    ui::QtShell shell;
    state::AppState state;
    platform::MainControls controls;
    ui::MainWindow window(controls, gate);
    AnsweringDialogs dialogs(data);
    shell.SetStatusBar(window.statusBar());
    io::XlsxSpreadsheet spreadsheet([&data] { return data / "soak.xlsx"; });
    QLabel picture;
    ui::QwtPrintSurface graphPrint(window.Graph(), picture);
    ui::QtPrinter printer(picture);
    platform::Services services { serial, window.Timers(), clock, dialogs, window.Graph(), window.Knob(),
        spreadsheet, printer, paths, shell, graphPrint };
    app::MainForm form(state, controls, services);
    window.WatchState(state);
    form.Form_Load();
    window.resize(1280, 800);
    window.show();

    bool ok = true;
    auto check = [&ok](bool passed, const char* what) {
        std::printf("%s: %s\n", passed ? "ok  " : "FAIL", what);
        ok = ok && passed;
    };

    // Fill the log. A 5 ms probe timer measures how late the event loop runs it: the longest
    // stall is the longest gap beyond its interval.
    QElapsedTimer clockWatch;
    clockWatch.start();
    qint64 longestGap = 0;
    qint64 lastProbe = 0;
    long longStalls = 0; // gaps of more than 20 ms beyond the interval
    long longStallsAtFlush = 0; // of those, seen just after a page went to the swap file
    long long longestStallAt = 0;
    QTimer probe;
    probe.setTimerType(Qt::PreciseTimer);
    QObject::connect(&probe, &QTimer::timeout, [&] {
        const qint64 now = clockWatch.elapsed();
        if (now - lastProbe > longestGap) {
            longestGap = now - lastProbe;
            longestStallAt = state::LoggedSamples(state);
        }
        if (now - lastProbe > 25) {
            ++longStalls;
            longStallsAtFlush += state.PageFill <= 3 ? 1 : 0;
        }
        lastProbe = now;
    });
    QTimer progress;
    QObject::connect(&progress, &QTimer::timeout, [&] {
        std::printf("      %6.1f s: %lld samples, %.1f MB resident\n", clockWatch.elapsed() / 1000.0,
            state::LoggedSamples(state), ResidentKb() / 1024.0);
        std::fflush(stdout);
        if (state.IsBufferFull)
            QCoreApplication::quit();
    });
    // The simulator's own frame is refused by validation: what it logs is its count in the function
    // of the last frame the meter sent. Here that was a DC voltage with three decimals.
    auto simulate = [&] {
        state.AwaitingAbsoluteReading = false;
        state.FunctionKind = 0;
        state.UnitLabel = state.BaseUnit = "V";
        state.DecimalDivisor = 1000;
        services.timers.DEBUG_TIMER.SetInterval(intervalMs);
        services.timers.DEBUG_TIMER.SetEnabled(true);
    };
    simulate();
    probe.start(5);
    progress.start(10000);
    QTimer::singleShot(0, [&] { lastProbe = clockWatch.elapsed(); });
    QApplication::exec();
    probe.stop();
    progress.stop();
    const double fillSeconds = clockWatch.elapsed() / 1000.0;
    std::printf("      filled in %.1f s at a %d ms simulator interval; longest event-loop stall %lld ms (at "
                "sample %lld); %ld stalls over 20 ms, %ld of them right after a page flush\n",
        fillSeconds, intervalMs, std::max<qint64>(0, longestGap - 5), longestStallAt, longStalls,
        longStallsAtFlush);

    // The simulator stopped itself; nothing more is logged.
    QElapsedTimer settle;
    settle.start();
    while (settle.elapsed() < 500)
        QApplication::processEvents();
    check(state::LoggedSamples(state) == kFullLog, "432,000 samples logged, no more after the log is full");
    check(dialogs.Count(kBufferFull) == 1, "\"Buffer Full!\" shown exactly once");
    check(SizeOf(paths.SwapFile()) == 432u * 8000u, "BUFFER.SWP holds exactly 432 pages");

    // Page back through every swap page and forward again, timing each page with its painting.
    qint64 longestPage = 0;
    qint64 allPages = 0;
    int pages = 0;
    auto page = [&](platform::Button& button) {
        QElapsedTimer t;
        t.start();
        button.Click();
        QApplication::processEvents();
        longestPage = std::max(longestPage, t.elapsed());
        allPages += t.elapsed();
        ++pages;
    };
    while (controls.CMD_PAGEUP.Enabled())
        page(controls.CMD_PAGEUP);
    check(state.ViewPage == 0, "paged back to the first page");
    while (controls.CMD_PAGEDOWN.Enabled())
        page(controls.CMD_PAGEDOWN);
    check(state.ViewPage == state.SwapPageCount, "paged forward to the memory page");
    std::printf("      %d pages shown, %.2f ms each on average, the longest %lld ms\n", pages,
        static_cast<double>(allPages) / std::max(pages, 1), longestPage);

    auto timed = [](const char* what, const std::filesystem::path& file, const std::function<void()>& run) {
        QElapsedTimer t;
        t.start();
        run();
        std::printf("      %s: %.2f s, %.1f MB\n", what, t.elapsed() / 1000.0, Megabytes(SizeOf(file)));
        return SizeOf(file);
    };
    check(timed("text file", data / "soak.txt", [&] { controls.Save_As.Click(); }) > 0, "text file saved");
    // With five or more swap pages the graph file's 16-bit end position overflows and nothing is
    // written; the command must still finish quietly.
    timed("graph file", data / "soak.gph", [&] { controls.MENU_SAVE_GRAPG_AS.Click(); });
    check(timed("workbook", data / "soak.xlsx", [&] { controls.Excel.Click(); }) > 0, "workbook exported");

    // Clear and log again.
    controls.CLEAR_LOG.Click();
    check(state::LoggedSamples(state) == 0 && !state.IsBufferFull, "the log is empty after clearing");
    simulate();
    QElapsedTimer again;
    again.start();
    while (state::LoggedSamples(state) < 5000 && again.elapsed() < 60000)
        QApplication::processEvents();
    services.timers.DEBUG_TIMER.SetEnabled(false);
    std::printf("      %lld samples logged after the clear in %.1f s\n", state::LoggedSamples(state),
        again.elapsed() / 1000.0);
    check(state::LoggedSamples(state) >= 5000 && state.SwapPageCount >= 5, "logging again after the clear");

    std::printf("      total %.1f s, peak resident memory %.1f MB\n", clockWatch.elapsed() / 1000.0,
        PeakResidentKb() / 1024.0);
    check(PeakResidentKb() < 150 * 1024, "peak resident memory under 150 MB");
    return ok ? 0 : 1;
}
