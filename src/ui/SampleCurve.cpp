#include "ui/SampleCurve.h"

#include <QPainter>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace ventrix::ui {

namespace {
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
    const int left = static_cast<int>(std::floor(canvasRect.left()));
    const int right = static_cast<int>(std::ceil(canvasRect.right())) + 1;
    const std::vector<SampleSeries::Column> columns
        = m_series.Columns(xMap, yMap, left, right, m_shape == Shape::Steps);
    QVector<QRect> rects;
    rects.reserve(static_cast<int>(columns.size()));
    painter->save();
    painter->setPen(Qt::NoPen);

    const bool lineDrawn = m_pen.style() != Qt::NoPen;
    const DashColumns dashes(m_pen);
    if (m_brush.style() != Qt::NoBrush && !columns.empty()) {
        // From the line to the base row, as two outlines (above and below the base) that fill
        // row by row: far fewer spans than one thin rectangle per column. Where the line is
        // drawn over a column the outline may end anywhere within the line's rows; it keeps as
        // level as it can there, so noisy data does not give it thousands of edges.
        const int base = static_cast<int>(std::lround(std::clamp(yMap.transform(m_baseline), -1e6, 1e6)));
        painter->setBrush(m_brush);
        for (const bool above : { true, false }) {
            const int edge = above ? base + 1 : base; // where the outline runs along the base
            QPolygon outline;
            outline.reserve(static_cast<int>(columns.size()) * 2 + 4);
            int next = columns.front().x;
            int row = edge;
            outline.append(QPoint(next, edge));
            for (const SampleSeries::Column& c : columns) {
                if (c.x != next) { // a gap without data: back to the base and along it
                    outline.append(QPoint(next, edge));
                    outline.append(QPoint(c.x, edge));
                }
                const int outer = above ? std::min(c.top, base) : std::max(c.bottom, base) + 1;
                const int inner = above ? std::min(c.bottom, base) : std::max(c.top, base) + 1;
                if (lineDrawn && dashes.Draws(c.x))
                    row = std::clamp(row, std::min(outer, inner), std::max(outer, inner));
                else
                    row = outer;
                if (outline.size() < 2 || outline.back().y() != row) {
                    outline.append(QPoint(c.x, row));
                    outline.append(QPoint(c.x + 1, row));
                } else {
                    outline.back().setX(c.x + 1);
                }
                next = c.x + 1;
            }
            outline.append(QPoint(next, edge));
            painter->drawPolygon(outline);
        }
    }
    if (lineDrawn) {
        // A pen w pixels wide covers w columns and w more rows around what a thin line covers.
        const int width = std::max(1, m_pen.width());
        const int before = (width - 1) / 2;
        for (const SampleSeries::Column& c : columns)
            if (dashes.Draws(c.x))
                rects.append(QRect(c.x - before, c.top - before, width, c.bottom - c.top + width));
        painter->setBrush(m_pen.color());
        painter->drawRects(rects);
    }
    if (m_symbol && m_symbol->style() != QwtSymbol::NoSymbol)
        DrawSymbols(painter, xMap, yMap, canvasRect, columns);
    painter->restore();
}

void SampleCurve::DrawSymbols(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
    const QRectF& canvasRect, const std::vector<SampleSeries::Column>& columns) const
{
    QPolygonF points;
    if (m_series.IsDense(xMap, canvasRect.width())) {
        points.reserve(static_cast<int>(columns.size()) * 2);
        for (const SampleSeries::Column& c : columns) {
            const double x = c.x + 0.5;
            points.append(QPointF(x, yMap.transform(c.smallest)));
            if (c.largest != c.smallest)
                points.append(QPointF(x, yMap.transform(c.largest)));
        }
    } else {
        points = m_series.VisiblePoints(xMap);
        for (QPointF& point : points)
            point = QPointF(xMap.transform(point.x()), yMap.transform(point.y()));
    }
    m_symbol->drawSymbols(painter, points);
}

} // namespace ventrix::ui
