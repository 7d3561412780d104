// The graph with a full log of 432,000 samples in a 1280x600 plot, offscreen: a full redraw of
// the canvas and of the whole plot in three looks (1-pixel line; width 3; width 5 with fill to
// base and a symbol on every point), PlotSample for one more point including its painting, the
// frame of a pan or zoom step and of a cursor drag, and the memory the samples take.

#include "ResidentMemory.h"
#include "graph/GraphCursors.h"
#include "graph/Plotter.h"
#include "platform/MainControls.h"
#include "state/AppState.h"
#include "ui/QwtGraphAdapter.h"
#include "ui/SampleSeries.h"

#include <QApplication>
#include <QImage>
#include <benchmark/benchmark.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_map.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>

using namespace ventrix;
using platform::GraphAxis;

namespace {

constexpr int kFullLog = 432000;

enum class Look { Thin, Default, Heaviest };

// The core's plotter on the Qwt graph, filled with a full log of a noisy DC voltage.
struct GraphRig {
    explicit GraphRig(Look look, int samples = kFullLog)
    {
        graph.resize(1280, 600);
        graph.show();
        graph.SetLineWidth(look == Look::Thin ? 1 : look == Look::Default ? 3 : 5);
        graph.SetFillToBase(look == Look::Heaviest);
        graph.SetPointStyle(look == Look::Heaviest ? 2 : 0);
        state.GraphRestartPending = true;
        state.FunctionKind = 0;
        state.BaseUnit.assign(1, 'V');
        state.DecimalDivisor = 1000;
        state.UnitMultiplier = 1.0;
        graph.SetAutoScale(GraphAxis::XAxis, true);
        for (int i = 0; i < samples; ++i)
            Plot();
        graph.Redraw();
        QCoreApplication::processEvents();
    }
    // One more sample: a slow wave with noise, 0 to about 3 V.
    void Plot()
    {
        const double volts = 1.5 + std::sin(n++ / 9000.0) + noise(rng);
        state.CountValue = std::round(std::abs(volts) * 1000.0);
        state.IsPositive = volts >= 0.0;
        plotter.PlotSample();
    }
    void RepaintCanvas()
    {
        auto* canvas = static_cast<QwtPlotCanvas*>(graph.canvas());
        canvas->invalidateBackingStore();
        canvas->repaint();
    }

    state::AppState state;
    platform::MainControls controls;
    ui::QwtGraphAdapter graph;
    graph::GraphCursors cursors { state, controls, graph };
    graph::Plotter plotter { state, controls, graph, cursors };
    std::mt19937 rng { 7 };
    std::normal_distribution<double> noise { 0.0, 0.05 };
    long n = 0;
};

GraphRig& Rig(Look look)
{
    static std::unique_ptr<GraphRig> rigs[3];
    auto& rig = rigs[static_cast<int>(look)];
    if (!rig)
        rig = std::make_unique<GraphRig>(look);
    return *rig;
}

void CanvasRedraw(benchmark::State& state, Look look)
{
    GraphRig& rig = Rig(look);
    rig.graph.SetView(GraphAxis::XAxis, 0.0, rig.graph.Samples().Count() - 1.0);
    rig.graph.Redraw();
    for (auto _ : state)
        rig.RepaintCanvas();
}

// The canvas, both axes and their titles drawn into an image.
void WholePlotRedraw(benchmark::State& state, Look look)
{
    GraphRig& rig = Rig(look);
    rig.graph.SetView(GraphAxis::XAxis, 0.0, rig.graph.Samples().Count() - 1.0);
    rig.graph.Redraw();
    QImage image(rig.graph.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        static_cast<QwtPlotCanvas*>(rig.graph.canvas())->invalidateBackingStore();
        rig.graph.render(&image);
    }
}

// What a redraw of the line computes before painting: the rows each pixel column covers.
void LineColumns(benchmark::State& state)
{
    GraphRig& rig = Rig(Look::Thin);
    rig.graph.SetView(GraphAxis::XAxis, 0.0, rig.graph.Samples().Count() - 1.0);
    rig.graph.Redraw();
    const QwtScaleMap x = rig.graph.canvasMap(QwtPlot::xBottom);
    const QwtScaleMap y = rig.graph.canvasMap(QwtPlot::yLeft);
    for (auto _ : state)
        benchmark::DoNotOptimize(rig.graph.Samples().Columns(x, y, 0, rig.graph.canvas()->width(), false));
}

// The event-loop passes that draw what is pending: the deferred replot, then the paint events.
void DrawPending()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

// PlotSample for one more point and the event-loop pass that draws it. `sampleScale` 0 lets both
// axes follow the data (they change with every point); 1000 shows the last 1000 samples.
void PlotSample(benchmark::State& state, Look look, std::int16_t sampleScale)
{
    GraphRig& rig = Rig(look);
    rig.state.SampleScale = sampleScale;
    rig.graph.SetAutoScale(GraphAxis::XAxis, sampleScale == 0);
    if (sampleScale != 0)
        rig.graph.SetView(GraphAxis::XAxis, rig.graph.Samples().Count() - 1.0 - sampleScale,
            rig.graph.Samples().Count() - 1.0);
    for (auto _ : state) {
        rig.Plot();
        DrawPending();
    }
}

// One step of a pan (or of a wheel zoom, which redraws the same way), drawn.
void PanFrame(benchmark::State& state, Look look, double span)
{
    GraphRig& rig = Rig(look);
    const double middle = (rig.graph.Samples().Count() - span) / 2.0;
    int step = 0;
    for (auto _ : state) {
        // Back and forth by 1 % of the view, up to 10 % either way.
        const double shift = (std::abs(step++ % 40 - 20) - 10) * span / 100.0;
        rig.graph.SetView(GraphAxis::XAxis, middle + shift, middle + shift + span);
        rig.graph.SetView(GraphAxis::YAxis1, shift / span, 3.5 + shift / span);
        DrawPending();
    }
}

void CursorDragFrame(benchmark::State& state)
{
    GraphRig& rig = Rig(Look::Default);
    rig.graph.SetView(GraphAxis::XAxis, 0.0, rig.graph.Samples().Count() - 1.0);
    rig.graph.SetTrackingMode(2);
    rig.graph.SetCursorMode(1, 1);
    rig.graph.SetCursorVisible(1, true);
    rig.graph.Redraw();
    QCoreApplication::processEvents();
    int x = 10;
    for (auto _ : state) {
        x = x % 1000 + 3;
        rig.graph.DragCursor(1, QPointF(x, 100));
        DrawPending();
    }
}

void Memory(benchmark::State& state)
{
    for (auto _ : state) {
        const long before = ResidentKb();
        ui::SampleSeries series;
        for (int i = 0; i < kFullLog; ++i)
            series.Append(i * 0.001);
        state.counters["series_MB"] = series.MemoryBytes() / 1e6;
        state.counters["rss_growth_MB"] = (ResidentKb() - before) / 1000.0;
    }
}

} // namespace

// First, while the process holds no other graph.
BENCHMARK(Memory)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CanvasRedraw, thin, Look::Thin)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CanvasRedraw, width3, Look::Default)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CanvasRedraw, heaviest, Look::Heaviest)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholePlotRedraw, thin, Look::Thin)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholePlotRedraw, heaviest, Look::Heaviest)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlotSample, thin_auto, Look::Thin, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlotSample, width3_auto, Look::Default, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlotSample, heaviest_auto, Look::Heaviest, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlotSample, width3_last1000, Look::Default, 1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlotSample, heaviest_last1000, Look::Heaviest, 1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PanFrame, width3_all, Look::Default, kFullLog)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PanFrame, width3_1000, Look::Default, 1000.0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PanFrame, heaviest_all, Look::Heaviest, kFullLog)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PanFrame, heaviest_1000, Look::Heaviest, 1000.0)->Unit(benchmark::kMillisecond);
BENCHMARK(LineColumns)->Unit(benchmark::kMillisecond);
BENCHMARK(CursorDragFrame)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    if (std::getenv("QT_QPA_PLATFORM") == nullptr)
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
