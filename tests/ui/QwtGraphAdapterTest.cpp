#include "ui/QwtGraphAdapter.h"
#include "graph/PlotAppearance.h"
#include "ui/SampleCurve.h"
#include "ui/SampleSeries.h"

#include <gtest/gtest.h>
#include <qwt_scale_map.h>

#include <algorithm>
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

TEST(QwtGraphAdapterTest, AutoScaleFollowsTheDataAndHoldsWhenTurnedOff)
{
    QwtGraphAdapter graph;
    graph.SetAxisMinimum(GraphAxis::YAxis1, -4.0);
    graph.SetAxisMaximum(GraphAxis::YAxis1, 4.0);
    for (double v : { 3.0, 17.0, -2.0, 9.0 })
        graph.AppendPoint(v);
    graph.SetAutoScale(GraphAxis::YAxis1, true);
    EXPECT_LE(graph.AxisMinimum(GraphAxis::YAxis1), -2.0);
    EXPECT_GE(graph.AxisMaximum(GraphAxis::YAxis1), 17.0);

    // Turning automatic scaling off keeps the range it chose, whatever comes later.
    const double max = graph.AxisMaximum(GraphAxis::YAxis1);
    graph.SetAutoScale(GraphAxis::YAxis1, false);
    graph.AppendPoint(1000.0);
    EXPECT_EQ(graph.AxisMaximum(GraphAxis::YAxis1), max);

    // Scaling once takes in the new data and then holds.
    graph.AutoScaleNow(GraphAxis::YAxis1);
    EXPECT_FALSE(graph.AutoScale(GraphAxis::YAxis1));
    EXPECT_GE(graph.AxisMaximum(GraphAxis::YAxis1), 1000.0);
}

QwtScaleMap Map(double s1, double s2, double pixels)
{
    QwtScaleMap map;
    map.setScaleInterval(s1, s2);
    map.setPaintInterval(0.0, pixels);
    return map;
}

TEST(SampleSeriesTest, DenseRunsThinToMinAndMaxPerColumn)
{
    constexpr int kCount = 432000;
    const int spike = 123457;
    const int dip = 300001;
    // A single extreme sample must survive thinning.
    SampleSeries series;
    for (int i = 0; i < kCount; ++i)
        series.Append(i == spike ? 100.0 : i == dip ? -100.0 : i % 7);

    const QPolygonF points = series.VisiblePoints(Map(0, kCount - 1, 1000), 1000);
    EXPECT_LE(points.size(), 2 * 1001 + 2);
    for (const QPointF extreme : { QPointF(spike, 100.0), QPointF(dip, -100.0) })
        EXPECT_TRUE(std::find(points.begin(), points.end(), extreme) != points.end()) << extreme.x();
    EXPECT_TRUE(std::is_sorted(points.begin(), points.end(), [](const QPointF& a, const QPointF& b) {
        return a.x() < b.x();
    })) << "points stay in the order they were taken";
    EXPECT_EQ(series.BoundingRect(), QRectF(0, -100, kCount - 1, 200));
}

TEST(SampleSeriesTest, SparseOrZoomedRunsKeepEverySampleInView)
{
    SampleSeries series;
    for (int i = 0; i < 1000; ++i)
        series.Append(i);
    // Zoomed to samples 100..200 on 800 pixels: the raw samples, one beyond each edge.
    const QPolygonF zoomed = series.VisiblePoints(Map(100, 200, 800), 800);
    ASSERT_EQ(zoomed.size(), 103);
    EXPECT_EQ(zoomed.first(), QPointF(99, 99));
    EXPECT_EQ(zoomed.last(), QPointF(201, 201));

    EXPECT_TRUE(series.VisiblePoints(Map(2000, 3000, 800), 800).isEmpty()) << "view right of the data";
    EXPECT_TRUE(series.VisiblePoints(Map(-50, -10, 800), 800).isEmpty()) << "view left of the data";
    EXPECT_TRUE(SampleSeries().VisiblePoints(Map(0, 10, 800), 800).isEmpty());
    EXPECT_FALSE(SampleSeries().BoundingRect().isValid());
}

} // namespace
} // namespace ventrix::ui
