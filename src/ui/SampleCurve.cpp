#include "ui/SampleCurve.h"

#include <QPainter>
#include <qwt_clipper.h>
#include <qwt_painter.h>
#include <qwt_scale_map.h>

#include <cmath>

namespace ventrix::ui {

namespace {
// Pixel rows of a value, clamped far outside the canvas so that huge values stay integers.
int Row(const QwtScaleMap& yMap, double value)
{
    return static_cast<int>(std::lround(std::clamp(yMap.transform(value), -1e6, 1e6)));
}

// Which pixel columns a dashed pen draws along X: its dash pattern in pixels, on and off.
class DashColumns {
public:
    explicit DashColumns(const QPen& pen)
    {
        if (pen.style() == Qt::SolidLine)
            return;
        const int unit = std::max(1, pen.width());
        for (qreal length : pen.dashPattern())
            m_lengths.push_back(std::max(1, static_cast<int>(std::lround(length * unit))));
        for (int length : m_lengths)
            m_period += length;
    }
    bool Draws(int column) const
    {
        if (m_period == 0)
            return true;
        int position = ((column % m_period) + m_period) % m_period;
        for (std::size_t i = 0; i < m_lengths.size(); ++i) {
            if (position < m_lengths[i])
                return i % 2 == 0;
            position -= m_lengths[i];
        }
        return true;
    }

private:
    std::vector<int> m_lengths;
    int m_period = 0;
};
} // namespace

SampleCurve::SampleCurve(const QString& title)
    : QwtPlotItem(QwtText(title))
{
    setItemAttribute(QwtPlotItem::AutoScale, false); // the graph scales its axes itself
    setItemAttribute(QwtPlotItem::Legend, false);
    setRenderHint(QwtPlotItem::RenderAntialiased, false);
    setZ(20.0);
}

void SampleCurve::draw(
    QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, const QRectF& canvasRect) const
{
    if (m_series.Count() == 0)
        return;
    painter->save();
    if (m_series.IsDense(xMap, canvasRect.width()))
        DrawDense(painter, xMap, yMap, canvasRect);
    else
        DrawSparse(painter, xMap, yMap, canvasRect);
    painter->restore();
}

void SampleCurve::DrawSparse(
    QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, const QRectF& canvasRect) const
{
    const QPolygonF samples = m_series.VisiblePoints(xMap);
    if (samples.isEmpty())
        return;
    QPolygonF points(samples.size());
    for (int i = 0; i < samples.size(); ++i)
        points[i] = QPointF(xMap.transform(samples[i].x()), yMap.transform(samples[i].y()));

    QPolygonF line;
    if (m_shape == Shape::Steps && points.size() > 1) {
        // Hold each value until the next sample, then jump.
        line.reserve(points.size() * 2 - 1);
        line.append(points.first());
        for (int i = 1; i < points.size(); ++i) {
            line.append(QPointF(points[i].x(), points[i - 1].y()));
            line.append(points[i]);
        }
    } else {
        line = points;
    }

    // Far-off points (zoomed in) are clipped to a margin around the canvas before drawing.
    const QRectF clip = canvasRect.adjusted(-10.0, -10.0, 10.0, 10.0);
    if (m_brush.style() != Qt::NoBrush && line.size() > 1) {
        const double base = yMap.transform(m_baseline);
        QPolygonF area = line;
        area.append(QPointF(line.last().x(), base));
        area.append(QPointF(line.first().x(), base));
        painter->setPen(Qt::NoPen);
        painter->setBrush(m_brush);
        painter->drawPolygon(QwtClipper::clipPolygonF(clip, area, true));
    }
    if (m_pen.style() != Qt::NoPen) {
        painter->setPen(m_pen);
        painter->setBrush(Qt::NoBrush);
        // Qwt's polyline splits long runs into short pieces: wide and dashed pens stroke many
        // times faster that way on raster devices.
        if (line.size() > 1)
            QwtPainter::drawPolyline(painter, QwtClipper::clipPolygonF(clip, line, false));
        else
            painter->drawPoint(line.first());
    }
    if (m_symbol && m_symbol->style() != QwtSymbol::NoSymbol)
        m_symbol->drawSymbols(painter, points);
}

void SampleCurve::DrawDense(
    QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, const QRectF& canvasRect) const
{
    const std::vector<SampleSeries::Column> columns
        = m_series.Columns(xMap, canvasRect.left(), canvasRect.right() + 1.0);
    QVector<QRect> rects;
    rects.reserve(static_cast<int>(columns.size()));

    if (m_brush.style() != Qt::NoBrush) {
        const int base = Row(yMap, m_baseline);
        for (const SampleSeries::Column& c : columns) {
            const int top = std::min(Row(yMap, c.high), base);
            const int bottom = std::max(Row(yMap, c.low), base);
            rects.append(QRect(c.x, top, 1, bottom - top + 1));
        }
        painter->setPen(Qt::NoPen);
        painter->setBrush(m_brush);
        painter->drawRects(rects);
        rects.clear();
    }
    if (m_pen.style() != Qt::NoPen) {
        // A pen of width w covers w columns and w rows around the band.
        const int width = std::max(1, m_pen.width());
        const int before = (width - 1) / 2;
        const DashColumns dashes(m_pen);
        for (const SampleSeries::Column& c : columns) {
            if (!dashes.Draws(c.x))
                continue;
            const int top = Row(yMap, c.high) - before;
            const int bottom = Row(yMap, c.low) - before + width - 1;
            rects.append(QRect(c.x - before, top, width, bottom - top + 1));
        }
        painter->setPen(Qt::NoPen);
        painter->setBrush(m_pen.color());
        painter->drawRects(rects);
    }
    if (m_symbol && m_symbol->style() != QwtSymbol::NoSymbol) {
        QPolygonF points;
        points.reserve(static_cast<int>(columns.size()) * 2);
        for (const SampleSeries::Column& c : columns) {
            const double x = c.x + 0.5;
            points.append(QPointF(x, yMap.transform(c.smallest)));
            if (c.largest != c.smallest)
                points.append(QPointF(x, yMap.transform(c.largest)));
        }
        m_symbol->drawSymbols(painter, points);
    }
}

} // namespace ventrix::ui
