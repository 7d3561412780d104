// The data log window in the real main window, offscreen at 1280x800, with a full log of 432
// swap pages: one page back or forward (1000 records read from BUFFER.SWP, formatted, shown in
// the text box and painted), and one live sample appended to a nearly full page on screen.

#include "app/MainForm.h"
#include "fakes/TestRig.h"
#include "files/FilesTestRig.h"
#include "io/ModalGate.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <benchmark/benchmark.h>

#include <cstdlib>

using namespace ventrix;

namespace {

constexpr int kFullLog = 431999; // every swap page written, the memory page one short of full

// The form bound to the real window, on fake services, with a log filled to the last sample.
struct WindowLog {
    WindowLog()
    {
        window.resize(1280, 800);
        window.show();
        form.Form_Load();
        testing::FillLog(rig.state, rig.paths.SwapFile(), kFullLog);
        rig.state.ViewPage = rig.state.SwapPageCount; // the memory page in view, as logging leaves it
        rig.controls.CMD_PAGEUP.SetEnabled(true);
        QApplication::processEvents();
    }
    // The text box painted now, as the screen would show it.
    void Paint()
    {
        QApplication::processEvents();
        log->viewport()->repaint();
    }
    fakes::TestRig rig;
    io::ModalGate gate;
    ui::MainWindow window { rig.controls, gate };
    app::MainForm form { rig.state, rig.controls, rig.services };
    QPlainTextEdit* log = window.findChild<QPlainTextEdit*>("DATA_LOG_TXT");
};

// Pages back through the swap file and forward again, one page per iteration.
void BM_PageInWindow(benchmark::State& state)
{
    WindowLog w;
    bool back = true;
    for (auto _ : state) {
        if (w.rig.state.ViewPage <= 0)
            back = false;
        else if (w.rig.state.ViewPage >= w.rig.state.SwapPageCount)
            back = true;
        (back ? w.rig.controls.CMD_PAGEUP : w.rig.controls.CMD_PAGEDOWN).Click();
        w.Paint();
    }
    state.counters["lines"] = w.log->document()->blockCount();
}
BENCHMARK(BM_PageInWindow)->Unit(benchmark::kMillisecond)->Iterations(200);

// A live sample appended to the memory page while it shows 998 lines: the line is appended, not
// the page laid out again.
void BM_LiveSampleInWindow(benchmark::State& state)
{
    WindowLog w;
    w.rig.state.IsAcquiring = true;
    w.rig.state.AwaitingAbsoluteReading = false;
    w.rig.state.ViewPage = w.rig.state.SwapPageCount;
    w.rig.state.SwapPageCount = 100;
    for (auto _ : state) {
        state.PauseTiming();
        w.rig.state.PageFill = 998;
        w.rig.state.LogPageText.clear();
        for (int i = 1; i < 998; ++i)
            w.rig.state.LogPageText += "10:15:30 AM    1.234 V\r\n";
        w.rig.controls.DATA_LOG_TXT.SetText(w.rig.state.LogPageText);
        w.Paint();
        state.ResumeTiming();
        w.form.Logger().AppendSample();
        w.Paint();
    }
}
BENCHMARK(BM_LiveSampleInWindow)->Unit(benchmark::kMillisecond)->Iterations(100);

} // namespace

int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
