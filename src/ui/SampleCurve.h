#pragma once

#include "ui/SampleSeries.h"

#include <QBrush>
#include <QPen>
#include <qwt_plot_item.h>
#include <qwt_symbol.h>

#include <memory>

namespace ventrix::ui {

// The plotted curve: the samples as a line (straight or in steps), optionally filled down to a
// base line and marked with a symbol at each sample. Draws only what is visible, one pixel
// column at a time (see SampleSeries::Columns): the line as the rows it covers there widened to
// the pen's width, a dashed pen broken into its dash pattern along X, the fill from the line to
// the base line; symbols on every sample where there are few per column, else on each column's
// smallest and largest sample. A full log draws as fast as a short one, and as the raw line
// would look without anti-aliasing.
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
    void DrawSymbols(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
        const QRectF& canvasRect, const std::vector<SampleSeries::Column>& columns) const;

    SampleSeries m_series;
    QPen m_pen;
    QBrush m_brush { Qt::NoBrush };
    Shape m_shape = Shape::Lines;
    double m_baseline = 0.0;
    std::unique_ptr<QwtSymbol> m_symbol;
};

} // namespace ventrix::ui
