#include "ui/QwtGraphAdapter.h"
#include "ui/SampleCurve.h"
#include "ui/SampleSeries.h"

#include <gtest/gtest.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_map.h>

#include <algorithm>

namespace ventrix::ui {
namespace {

using platform::GraphAxis;

TEST(QwtGraphAdapterTest, LineStyleCodesSelectShapeAndDash)
{
    QwtGraphAdapter graph;
    const struct {
        int code;
        SampleCurve::Shape shape;
        Qt::PenStyle pen;
    } cases[] = {
        { 1, SampleCurve::Shape::Lines, Qt::SolidLine },
        { 2, SampleCurve::Shape::Steps, Qt::SolidLine },
        { 4, SampleCurve::Shape::Lines, Qt::DashLine },
        { 5, SampleCurve::Shape::Lines, Qt::DotLine },
        { 6, SampleCurve::Shape::Lines, Qt::DashDotLine },
    };
    for (const auto& c : cases) {
        graph.SetLineStyle(c.code);
        EXPECT_EQ(graph.LineStyle(), c.code);
        EXPECT_EQ(graph.Curve().GetShape(), c.shape) << c.code;
        EXPECT_EQ(graph.Curve().Pen().style(), c.pen) << c.code;
    }
    graph.SetLineStyle(3); // not a code of the graph: ignored
    EXPECT_EQ(graph.LineStyle(), 6);
    EXPECT_EQ(graph.Curve().Pen().style(), Qt::DashDotLine);
}

TEST(QwtGraphAdapterTest, PointStyleCodesSelectSymbols)
{
    QwtGraphAdapter graph;
    const struct {
        int code;
        QwtSymbol::Style symbol;
        bool solid;
    } cases[] = {
        { 1, QwtSymbol::Rect, false },
        { 2, QwtSymbol::Rect, true },
        { 22, QwtSymbol::Diamond, false },
        { 6, QwtSymbol::Diamond, true },
        { 3, QwtSymbol::Star1, false },
        { 16, QwtSymbol::XCross, false },
    };
    for (const auto& c : cases) {
        graph.SetPointStyle(c.code);
        EXPECT_EQ(graph.PointStyle(), c.code);
        const QwtSymbol* symbol = graph.Curve().Symbol();
        ASSERT_NE(symbol, nullptr) << c.code;
        EXPECT_EQ(symbol->style(), c.symbol) << c.code;
        EXPECT_EQ(symbol->brush().style() != Qt::NoBrush, c.solid) << c.code;
    }
    graph.SetPointStyle(0);
    EXPECT_EQ(graph.Curve().Symbol(), nullptr);
    graph.SetPointStyle(7);
    EXPECT_EQ(graph.PointStyle(), 0);
}

TEST(QwtGraphAdapterTest, WidthFillAndGridReadBack)
{
    QwtGraphAdapter graph;
    graph.SetLineWidth(0);
    EXPECT_EQ(graph.Curve().Pen().width(), 0) << "width 0 is the thinnest line";
    EXPECT_TRUE(graph.Curve().Pen().isCosmetic());
    graph.SetLineWidth(-1);
    EXPECT_EQ(graph.LineWidth(), 0);
    graph.SetFillToBase(true);
    EXPECT_TRUE(graph.FillToBase());
    EXPECT_EQ(graph.Curve().Brush().color(), QwtGraphAdapter::kFillColour);
    graph.SetLineStyle(4); // restyling the line keeps the fill
    EXPECT_NE(graph.Curve().Brush().style(), Qt::NoBrush);
    graph.SetFillToBase(false);
    EXPECT_EQ(graph.Curve().Brush().style(), Qt::NoBrush);

    graph.SetMajorGrid(GraphAxis::XAxis, false);
    graph.SetMajorGrid(GraphAxis::YAxis1, true);
    EXPECT_FALSE(graph.MajorGrid(GraphAxis::XAxis));
    EXPECT_TRUE(graph.MajorGrid(GraphAxis::YAxis1));
    EXPECT_FALSE(graph.GridItem().xEnabled());
    EXPECT_TRUE(graph.GridItem().yEnabled());
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
    graph.AutoScaleNow(GraphAxis::XAxis);
    EXPECT_LE(graph.AxisMinimum(GraphAxis::XAxis), 0.0);
    EXPECT_GE(graph.AxisMaximum(GraphAxis::XAxis), 4.0);

    graph.ClearData();
    EXPECT_EQ(graph.Samples().Count(), 0u);
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
