// Files, export and printing with a full log of 432,000 samples: the log text file, the workbook
// (with how much the resident set grows while it is written, sampled at every page of the log)
// and printing the full graph to a PDF file (with the file's size).

#include "fakes/TestRig.h"
#include "files/FilesTestRig.h"
#include "files/GraphPrint.h"
#include "files/LogTextFile.h"
#include "files/SpreadsheetExport.h"
#include "io/XlsxSpreadsheet.h"
#include "ui/QtPrinter.h"
#include "ui/QwtGraphAdapter.h"
#include "ui/QwtPrintSurface.h"

#include <QApplication>
#include <QLabel>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

using namespace ventrix;

namespace {

constexpr int kFullLog = 432000;

double ResidentMegabytes()
{
    long pages = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

// Records the largest resident set seen at each progress step of a write.
class MeasuringShell : public fakes::FakeShell {
public:
    void ShowProgress(std::size_t, std::size_t) override { peak = std::max(peak, ResidentMegabytes()); }
    double peak = 0.0;
};

struct FullLog {
    fakes::TestRig rig;
    MeasuringShell shell;
    FullLog(int samples) { testing::FillLog(rig.state, rig.paths.SwapFile(), samples); }
    platform::Services With(platform::Spreadsheet& sheet)
    {
        platform::Services s = rig.services;
        return { s.MSComm1, s.timers, s.clock, s.dialogs, s.GRAPH_CWGraph, s.KNOB_ANALOG, sheet, s.printer,
            s.paths, shell, s.graphPrint };
    }
};

void BM_LogTextFile(benchmark::State& state)
{
    FullLog log(kFullLog);
    log.rig.state.TextFilePath = log.rig.state.TextDialogPath
        = (log.rig.paths.ProgramDirectory() / "log.txt").string();
    platform::CommonDialog fileBox(log.rig.dialogs);
    files::LogTextFile text(log.rig.state, log.rig.controls, log.rig.services, fileBox);
    for (auto _ : state)
        text.WriteLogText();
    state.counters["file_MB"] = std::filesystem::file_size(log.rig.state.TextFilePath) / (1024.0 * 1024.0);
}
BENCHMARK(BM_LogTextFile)->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_Workbook(benchmark::State& state)
{
    FullLog log(static_cast<int>(state.range(0)));
    const std::filesystem::path path = log.rig.paths.ProgramDirectory() / "export.xlsx";
    io::XlsxSpreadsheet workbook([&] { return path; });
    platform::Services services = log.With(workbook);
    files::SpreadsheetExport exporter(log.rig.state, services);
    const double before = ResidentMegabytes();
    for (auto _ : state)
        exporter.ExportToSpreadsheet();
    state.counters["rss_growth_MB"] = log.shell.peak - before;
    state.counters["file_MB"] = std::filesystem::file_size(path) / (1024.0 * 1024.0);
}
BENCHMARK(BM_Workbook)->Arg(43200)->Arg(kFullLog)->Unit(benchmark::kMillisecond)->Iterations(3);

// The same export into a spreadsheet that takes every cell and keeps nothing: the program's own
// share of the time (reading the log, formatting, cell addresses), without the writer's.
class DiscardingSheet : public platform::Spreadsheet {
public:
    bool Create() override { return true; }
    bool SetStandardWidth(double) override { return true; }
    bool SetCellText(const std::string& cell, const std::string& text) override
    {
        benchmark::DoNotOptimize(cell.size() + text.size());
        return true;
    }
    bool SetBold(const std::string&) override { return true; }
    void Release() override { }
};

void BM_WorkbookWithoutWriter(benchmark::State& state)
{
    FullLog log(kFullLog);
    DiscardingSheet sheet;
    platform::Services services = log.With(sheet);
    files::SpreadsheetExport exporter(log.rig.state, services);
    for (auto _ : state)
        exporter.ExportToSpreadsheet();
}
BENCHMARK(BM_WorkbookWithoutWriter)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_PrintFullGraph(benchmark::State& state)
{
    fakes::TestRig rig;
    ui::QwtGraphAdapter graph;
    graph.resize(1200, 600);
    for (int i = 0; i < kFullLog; ++i)
        graph.AppendPoint(std::sin(i / 5000.0) * 3.0 + std::sin(i / 7.0) * 0.2);
    graph.SetAxisMaximum(platform::GraphAxis::XAxis, kFullLog);
    graph.SetAxisMinimum(platform::GraphAxis::YAxis1, -4.0);
    graph.SetAxisMaximum(platform::GraphAxis::YAxis1, 4.0);
    graph.SetLineWidth(static_cast<int>(state.range(0)));
    graph.SetFillToBase(state.range(1) != 0);
    rig.controls.FILL.SetChecked(state.range(1) != 0);
    QLabel picture;
    ui::QwtPrintSurface surface(graph, picture);
    ui::QtPrinter printer(picture);
    const std::filesystem::path pdf = rig.paths.ProgramDirectory() / "graph.pdf";
    printer.Device().setOutputFormat(QPrinter::PdfFormat);
    printer.Device().setOutputFileName(QString::fromStdString(pdf.string()));
    platform::Services services { rig.serial,
        { rig.unlinkTimer, rig.sampleTimer, rig.analogTimer, rig.debugTimer }, rig.clock, rig.dialogs, graph,
        rig.knob, rig.spreadsheet, printer, rig.paths, rig.shell, surface };
    files::GraphPrint print(rig.controls, services);
    for (auto _ : state) {
        rig.dialogs.printAnswers.push_back(platform::PrintDialogResult {});
        print.PrintGraph();
    }
    state.counters["pdf_KB"] = std::filesystem::file_size(pdf) / 1024.0;
}
BENCHMARK(BM_PrintFullGraph)->Args({ 0, 0 })->Args({ 3, 1 })->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

int main(int argc, char** argv)
{
    if (std::getenv("QT_QPA_PLATFORM") == nullptr)
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
