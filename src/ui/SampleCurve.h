#pragma once

#include "ui/SampleSeries.h"

#include <QBrush>
#include <QPen>
#include <qwt_plot_item.h>
#include <qwt_symbol.h>

#include <memory>

namespace ventrix::ui {

// The plotted curve: the samples as a line (straight or in steps), optionally filled down to a
// base line and marked with a symbol at each drawn point. Draws only what is visible. Where
// samples are dense (more than SampleSeries::kRawPointsPerColumn per pixel column) each column
// is drawn as the band of values the line passes through there, as wide as the pen and broken
// into the pen's dash pattern along X, the fill as the band down to the base line, and the
// symbols at the column's smallest and largest sample: the picture of the raw line at a cost
// bounded by the canvas width.
class SampleCurve : public QwtPlotItem {
public:
    enum class Shape { Lines, Steps };

    explicit SampleCurve(const QString& title);

    int rtti() const override { return QwtPlotItem::Rtti_PlotUserItem + 1; }
    QRectF boundingRect() const override { return m_series.BoundingRect(); }
    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
        const QRectF& canvasRect) const override;

    SampleSeries& Series() { return m_series; }
    const SampleSeries& Series() const { return m_series; }

    void SetPen(const QPen& pen) { m_pen = pen; }
    const QPen& Pen() const { return m_pen; }
    void SetShape(Shape shape) { m_shape = shape; }
    Shape GetShape() const { return m_shape; }
    void SetBrush(const QBrush& brush) { m_brush = brush; }
    const QBrush& Brush() const { return m_brush; }
    void SetBaseline(double value) { m_baseline = value; }
    void SetSymbol(std::unique_ptr<QwtSymbol> symbol) { m_symbol = std::move(symbol); }
    const QwtSymbol* Symbol() const { return m_symbol.get(); }

private:
    void DrawSparse(
        QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, const QRectF& canvasRect) const;
    void DrawDense(
        QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, const QRectF& canvasRect) const;

    SampleSeries m_series;
    QPen m_pen;
    QBrush m_brush { Qt::NoBrush };
    Shape m_shape = Shape::Lines;
    double m_baseline = 0.0;
    std::unique_ptr<QwtSymbol> m_symbol;
};

} // namespace ventrix::ui
