#include "ui/SampleCurve.h"

#include <QPainter>
#include <qwt_clipper.h>
#include <qwt_painter.h>
#include <qwt_scale_map.h>

namespace ventrix::ui {

SampleCurve::SampleCurve(const QString& title)
    : QwtPlotItem(QwtText(title))
{
    setItemAttribute(QwtPlotItem::AutoScale, true);
    setItemAttribute(QwtPlotItem::Legend, false);
    setRenderHint(QwtPlotItem::RenderAntialiased, false);
    setZ(20.0);
}

void SampleCurve::draw(
    QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, const QRectF& canvasRect) const
{
    const QPolygonF samples = m_series.VisiblePoints(xMap, canvasRect.width());
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
    painter->save();
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
    painter->restore();
}

} // namespace ventrix::ui
