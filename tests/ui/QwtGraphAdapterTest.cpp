#include "ui/QwtGraphAdapter.h"
#include "app/MainForm.h"
#include "fakes/FakeGraph.h"
#include "fakes/TestRig.h"
#include "graph/PlotAppearance.h"
#include "io/ModalGate.h"
#include "ui/MainWindow.h"
#include "ui/SampleCurve.h"
#include "ui/SampleSeries.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>
#include <functional>
#include <set>
#include <tuple>

namespace ventrix::ui {
namespace {

using platform::GraphAxis;

// Every menu code draws differently; a code the graph does not have changes nothing.
TEST(QwtGraphAdapterTest, EveryStyleCodeMapsToADistinctQwtStyle)
{
    QwtGraphAdapter graph;
    std::set<std::pair<SampleCurve::Shape, Qt::PenStyle>> lines;
    for (int code : graph::kLineStyleCodes) {
        graph.SetLineStyle(code);
        EXPECT_EQ(graph.LineStyle(), code);
        lines.emplace(graph.Curve().GetShape(), graph.Curve().Pen().style());
    }
    EXPECT_EQ(lines.size(), graph::kLineStyleCodes.size());
    graph.SetLineStyle(3);
    EXPECT_EQ(graph.LineStyle(), graph::kLineStyleCodes.back());

    std::set<std::tuple<int, bool>> points;
    for (int code : graph::kPointStyleCodes) {
        graph.SetPointStyle(code);
        EXPECT_EQ(graph.PointStyle(), code);
        const QwtSymbol* symbol = graph.Curve().Symbol();
        EXPECT_EQ(symbol == nullptr, code == 0) << code;
        points.emplace(symbol ? int(symbol->style()) : -1, symbol && symbol->brush().style() != Qt::NoBrush);
    }
    EXPECT_EQ(points.size(), graph::kPointStyleCodes.size());
    graph.SetPointStyle(7);
    EXPECT_EQ(graph.PointStyle(), graph::kPointStyleCodes.back());
}

// The graph on screen and the fake the core tests use answer one script of calls alike: points
// along X, automatic scaling, held ranges, the strip-chart scroll, cursors on the samples.
TEST(QwtGraphAdapterTest, BehavesAsTheFakeGraph)
{
    QwtGraphAdapter real;
    fakes::FakeGraph fake;
    std::vector<std::string> log;
    const auto both = [&](const std::function<void(platform::GraphControl&)>& step) {
        step(real);
        step(fake);
        for (GraphAxis axis : { GraphAxis::XAxis, GraphAxis::YAxis1 }) {
            EXPECT_EQ(real.AxisMinimum(axis), fake.AxisMinimum(axis)) << log.size();
            EXPECT_EQ(real.AxisMaximum(axis), fake.AxisMaximum(axis)) << log.size();
            EXPECT_EQ(real.AutoScale(axis), fake.AutoScale(axis)) << log.size();
        }
        for (int cursor : { 1, 2 }) {
            EXPECT_EQ(real.CursorX(cursor), fake.CursorX(cursor)) << log.size();
            EXPECT_EQ(real.CursorY(cursor), fake.CursorY(cursor)) << log.size();
        }
        log.push_back("step");
    };
    using G = platform::GraphControl;
    both([](G& g) { g.SetAutoScale(GraphAxis::XAxis, true); });
    both([](G& g) {
        for (double v : { 0.5, -1.25, 3.0 })
            g.AppendPoint(v);
    });
    both([](G& g) { g.AutoScaleNow(GraphAxis::YAxis1); });
    both([](G& g) { g.SetAxisMinimum(GraphAxis::XAxis, 1.0); }); // held from here on ...
    both([](G& g) { g.AppendPoint(2.0); }); // ... but scrolled along: 1..2 becomes 2..3
    both([](G& g) { g.SetAxisMaximum(GraphAxis::XAxis, 40.0); });
    both([](G& g) { g.AppendPoint(7.0); }); // inside the view: nothing moves
    both([](G& g) { g.SetAutoScale(GraphAxis::YAxis1, true); });
    both([](G& g) { g.AppendPoint(0.0); }); // the automatic amplitude axis follows
    both([](G& g) {
        g.SetCursorMode(1, 1);
        g.SetCursorX(1, 2.6); // onto sample 3
        g.SetCursorX(2, 99.0); // free: stays
    });
    both([](G& g) { g.ClearData(); });
    both([](G& g) { g.SetCursorX(1, 6.5); }); // no data: stays, Y 0
    both([](G& g) { g.AppendPoint(1.5); }); // then stands on the only sample
    EXPECT_EQ(real.Samples().Count(), fake.points.size());
}

TEST(QwtGraphAdapterTest, AxisLabelsAreSiPrefixedAndWholeSampleNumbers)
{
    QwtGraphAdapter graph;
    graph.resize(800, 400);
    graph.SetAxisMinimum(GraphAxis::YAxis1, -4e7);
    graph.SetAxisMaximum(GraphAxis::YAxis1, 4e7);
    graph.SetAxisMinimum(GraphAxis::XAxis, 0.0);
    graph.SetAxisMaximum(GraphAxis::XAxis, 3.0);
    graph.Redraw();
    const auto labels = [&](int axis) {
        QStringList texts;
        const QwtScaleDraw* draw = graph.axisScaleDraw(axis);
        for (double tick : graph.axisScaleDiv(axis).ticks(QwtScaleDiv::MajorTick))
            texts << draw->label(tick).text();
        return texts.join(' ').toStdString();
    };
    EXPECT_EQ(labels(QwtPlot::yLeft), "-40M -30M -20M -10M 0 10M 20M 30M 40M");
    EXPECT_EQ(labels(QwtPlot::xBottom), "0 1 2 3") << "no ticks between samples";
}

QwtScaleMap Map(double s1, double s2, double pixels)
{
    QwtScaleMap map;
    map.setScaleInterval(s1, s2);
    map.setPaintInterval(0.0, pixels);
    return map;
}

TEST(SampleSeriesTest, ColumnsCoverWhatTheLineCovers)
{
    constexpr int kCount = 432000;
    const int spike = 123457;
    const int dip = 300001;
    SampleSeries series;
    for (int i = 0; i < kCount; ++i)
        series.Append(i == spike ? 100.0 : i == dip ? -100.0 : i % 7);
    EXPECT_LE(series.MemoryBytes(), 4u * 1024 * 1024) << "four bytes a sample and the vector's slack";
    EXPECT_EQ(series.BoundingRect(), QRectF(0, -100, kCount - 1, 200));

    // Rows 200 (value -100) up to 0 (value 100); a single extreme sample survives.
    const QwtScaleMap x = Map(0, kCount - 1, 1000);
    const QwtScaleMap y = Map(100, -100, 200);
    EXPECT_TRUE(series.IsDense(x, 1000));
    const auto columns = series.Columns(x, y, 0, 1000, false);
    ASSERT_EQ(columns.size(), 1000u);
    const auto at = [&](int sample) { return columns[static_cast<std::size_t>(x.transform(sample))]; };
    EXPECT_EQ(at(spike).top, 0);
    EXPECT_EQ(at(spike).largest, 100.0f);
    EXPECT_EQ(at(dip).bottom, 200);
    EXPECT_EQ(columns.front().top, 94);
    EXPECT_EQ(columns.front().bottom, 100);

    // A step: a straight line climbs in the column before it, a stepped one in its own column.
    SampleSeries step;
    for (int i = 0; i < 100; ++i)
        step.Append(i < 50 ? 0.0 : 1.0);
    const QwtScaleMap tenRows = Map(1, 0, 10);
    const auto straight = step.Columns(Map(0, 99, 10), tenRows, 0, 10, false);
    EXPECT_EQ(std::make_pair(straight[4].top, straight[4].bottom), std::make_pair(1, 10));
    EXPECT_EQ(std::make_pair(straight[5].top, straight[5].bottom), std::make_pair(0, 0));
    const auto stepped = step.Columns(Map(0, 99, 10), tenRows, 0, 10, true);
    EXPECT_EQ(std::make_pair(stepped[4].top, stepped[4].bottom), std::make_pair(10, 10));
    EXPECT_EQ(std::make_pair(stepped[5].top, stepped[5].bottom), std::make_pair(0, 10));

    // Zoomed in, a line rising 100 rows over 100 columns and falling back takes about one row
    // in each column, and the columns join up.
    SampleSeries peak;
    for (double v : { 0.0, 10.0, 0.0 })
        peak.Append(v);
    const auto zoomed = peak.Columns(Map(0, 2, 200), Map(0, 10, 100), 0, 200, false);
    ASSERT_EQ(zoomed.size(), 200u);
    for (std::size_t i = 0; i < zoomed.size(); ++i) {
        EXPECT_LE(zoomed[i].bottom - zoomed[i].top, 1) << i;
        if (i > 0) {
            EXPECT_LE(std::max(zoomed[i].top - zoomed[i - 1].bottom, zoomed[i - 1].top - zoomed[i].bottom), 1)
                << i;
        }
    }
}

TEST(SampleSeriesTest, SparseOrZoomedRunsKeepEverySampleInView)
{
    SampleSeries series;
    for (int i = 0; i < 1000; ++i)
        series.Append(i);
    // Zoomed to samples 100..200 on 800 pixels: the raw samples, one beyond each edge.
    EXPECT_FALSE(series.IsDense(Map(100, 200, 800), 800));
    const QPolygonF zoomed = series.VisiblePoints(Map(100, 200, 800));
    ASSERT_EQ(zoomed.size(), 103);
    EXPECT_EQ(zoomed.first(), QPointF(99, 99));
    EXPECT_EQ(zoomed.last(), QPointF(201, 201));

    EXPECT_TRUE(series.VisiblePoints(Map(2000, 3000, 800)).isEmpty()) << "view right of the data";
    EXPECT_TRUE(series.VisiblePoints(Map(-50, -10, 800)).isEmpty()) << "view left of the data";
    EXPECT_TRUE(SampleSeries().VisiblePoints(Map(0, 10, 800)).isEmpty());
    EXPECT_FALSE(SampleSeries().BoundingRect().isValid());
}

void Mouse(QWidget* target, QEvent::Type type, QPoint at)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, target->mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

void Drag(QWidget* target, QPoint from, QPoint to)
{
    Mouse(target, QEvent::MouseButtonPress, from);
    Mouse(target, QEvent::MouseMove, (from + to) / 2);
    Mouse(target, QEvent::MouseMove, to);
    Mouse(target, QEvent::MouseButtonRelease, to);
}

// Zoom, pan and wheel leave ranges that read back as the axes' minimum and maximum.
TEST(QwtGraphAdapterTest, ZoomPanAndWheelChangeTheRangesReadBack)
{
    QwtGraphAdapter graph;
    graph.resize(600, 400);
    graph.show();
    const auto reset = [&] {
        graph.SetView(GraphAxis::XAxis, 0.0, 100.0);
        graph.SetView(GraphAxis::YAxis1, 0.0, 10.0);
        graph.Redraw();
    };
    reset();
    QWidget* canvas = graph.canvas();
    const QwtScaleMap x = graph.canvasMap(QwtPlot::xBottom);
    const QwtScaleMap y = graph.canvasMap(QwtPlot::yLeft);
    const auto at = [&](double sample, double value) {
        return QPoint(static_cast<int>(std::lround(x.transform(sample))),
            static_cast<int>(std::lround(y.transform(value))));
    };
    const double pixel = 100.0 / canvas->width() + 10.0 / canvas->height(); // one pixel, roughly

    Drag(canvas, at(20, 8), at(40, 2)); // tracking mode 6 from the start
    EXPECT_NEAR(graph.AxisMinimum(GraphAxis::XAxis), 20.0, pixel);
    EXPECT_NEAR(graph.AxisMaximum(GraphAxis::XAxis), 40.0, pixel);
    EXPECT_NEAR(graph.AxisMinimum(GraphAxis::YAxis1), 2.0, pixel);
    EXPECT_NEAR(graph.AxisMaximum(GraphAxis::YAxis1), 8.0, pixel);

    reset();
    graph.SetTrackingMode(3);
    Drag(canvas, at(50, 5), at(40, 4));
    EXPECT_NEAR(graph.AxisMinimum(GraphAxis::XAxis), 10.0, pixel);
    EXPECT_NEAR(graph.AxisMaximum(GraphAxis::YAxis1), 11.0, pixel);

    reset();
    graph.SetTrackingMode(2); // the wheel zooms in every mode, around the pointer
    QWheelEvent wheel(QPointF(at(25, 5)), canvas->mapToGlobal(at(25, 5)), QPoint(), QPoint(0, 120),
        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(canvas, &wheel);
    EXPECT_NEAR(graph.AxisMinimum(GraphAxis::XAxis), 25.0 - 25.0 * 0.8, pixel);
    EXPECT_NEAR(graph.AxisMaximum(GraphAxis::XAxis), 25.0 + 75.0 * 0.8, pixel);
    EXPECT_FALSE(graph.AutoScale(GraphAxis::XAxis));
}

// The whole window on the real graph: in Cursor mode a dragged cursor stands on a sample and
// the readouts beside the graph follow it.
TEST(QwtGraphAdapterTest, DraggingACursorInTheWindowUpdatesTheReadouts)
{
    fakes::TestRig fakes;
    io::ModalGate gate;
    MainWindow window(fakes.controls, gate);
    platform::Services services { fakes.serial, fakes.services.timers, fakes.clock, fakes.dialogs,
        window.Graph(), fakes.knob, fakes.spreadsheet, fakes.printer, fakes.paths, fakes.shell,
        fakes.graphPrint };
    app::MainForm form(fakes.state, fakes.controls, services);
    form.Form_Load();
    window.show();

    state::AppState& s = fakes.state;
    s.FunctionKind = 0;
    s.BaseUnit = "V";
    s.DecimalDivisor = 1000;
    for (int i = 0; i < 20; ++i) {
        s.CountValue = 1000 + 10 * i; // 1.000 V, 1.010 V ...
        form.Plotter().PlotSample();
    }
    auto* mode = window.findChild<QComboBox*>(QStringLiteral("GRAPH_MODE_COMBO"));
    mode->setCurrentIndex(2);
    emit mode->activated(2);
    QwtGraphAdapter& graph = window.Graph();
    graph.Redraw();
    auto* x1 = window.findChild<QLabel*>(QStringLiteral("X1_VAL_LBL"));
    auto* y1 = window.findChild<QLabel*>(QStringLiteral("Y1_VAL_LBL"));
    auto* between = window.findChild<QLabel*>(QStringLiteral("X1_X2_VAL_LBL"));
    EXPECT_TRUE(x1->isEnabled());
    EXPECT_EQ(x1->text(), "10s");

    const QwtScaleMap xMap = graph.canvasMap(QwtPlot::xBottom);
    const int middle = static_cast<int>(xMap.transform(10.0));
    const QPoint to(static_cast<int>(std::lround(xMap.transform(4.2))), 20);
    Drag(graph.canvas(), QPoint(middle, 20), to); // both cursors stand there: cursor 1 is taken
    EXPECT_EQ(graph.CursorX(1), 4.0);
    EXPECT_EQ(x1->text(), "4s");
    EXPECT_EQ(y1->text(), "1.04V");
    EXPECT_EQ(between->text(), "6s");
}

} // namespace
} // namespace ventrix::ui
