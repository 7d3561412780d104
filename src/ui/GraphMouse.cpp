#include "ui/GraphMouse.h"

#include "ui/GraphOverlay.h"
#include "ui/QwtGraphAdapter.h"

#include <QMouseEvent>
#include <QWheelEvent>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace ventrix::ui {

using platform::GraphAxis;

namespace {
constexpr int kZoomMode = 6;
constexpr int kPanMode = 3;
constexpr int kCursorMode = 2;
} // namespace

GraphMouse::GraphMouse(QwtGraphAdapter& graph)
    : QObject(&graph)
    , m_graph(graph)
{
}

bool GraphMouse::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel)
        return Wheel(watched, event);
    if (watched == m_graph.canvas())
        return CanvasEvent(event);
    return false;
}

bool GraphMouse::CanvasEvent(QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease)
        return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QPoint point = mouse->pos();
    const QwtScaleMap xMap = m_graph.canvasMap(QwtPlot::xBottom);
    const QwtScaleMap yMap = m_graph.canvasMap(QwtPlot::yLeft);

    if (type == QEvent::MouseButtonPress) {
        if (mouse->button() != Qt::LeftButton)
            return false;
        m_origin = point;
        m_drag = Drag::None;
        if (m_graph.TrackingMode() == kZoomMode) {
            m_drag = Drag::Zoom;
        } else if (m_graph.TrackingMode() == kPanMode) {
            m_drag = Drag::Pan;
            m_startX[0] = m_graph.AxisMinimum(GraphAxis::XAxis);
            m_startX[1] = m_graph.AxisMaximum(GraphAxis::XAxis);
            m_startY[0] = m_graph.AxisMinimum(GraphAxis::YAxis1);
            m_startY[1] = m_graph.AxisMaximum(GraphAxis::YAxis1);
        } else if (m_graph.TrackingMode() == kCursorMode) {
            m_cursor = m_graph.NearestCursor(point.x());
            if (m_cursor != 0) {
                m_drag = Drag::Cursor;
                m_graph.DragCursor(m_cursor, point);
            }
        }
        return m_drag != Drag::None;
    }

    if (m_drag == Drag::None)
        return false;
    const bool release = type == QEvent::MouseButtonRelease;
    switch (m_drag) {
    case Drag::Zoom: {
        const QRect band = QRect(m_origin, point).normalized();
        if (!release) {
            m_graph.Overlay().SetBand(band);
            break;
        }
        m_graph.Overlay().SetBand(QRect());
        if (band.width() >= kMinimumBand && band.height() >= kMinimumBand) {
            m_graph.SetView(
                GraphAxis::XAxis, xMap.invTransform(band.left()), xMap.invTransform(band.right()));
            m_graph.SetView(
                GraphAxis::YAxis1, yMap.invTransform(band.bottom()), yMap.invTransform(band.top()));
        }
        break;
    }
    case Drag::Pan: {
        // The view moves with the pointer, measured from where the drag began.
        const double dx = xMap.invTransform(point.x()) - xMap.invTransform(m_origin.x());
        const double dy = yMap.invTransform(point.y()) - yMap.invTransform(m_origin.y());
        m_graph.SetView(GraphAxis::XAxis, m_startX[0] - dx, m_startX[1] - dx);
        m_graph.SetView(GraphAxis::YAxis1, m_startY[0] - dy, m_startY[1] - dy);
        break;
    }
    case Drag::Cursor:
        m_graph.DragCursor(m_cursor, point);
        break;
    case Drag::None:
        break;
    }
    if (release)
        m_drag = Drag::None;
    return true;
}

bool GraphMouse::Wheel(QObject* watched, QEvent* event)
{
    const auto* wheel = static_cast<QWheelEvent*>(event);
    const double notches = wheel->angleDelta().y() / 120.0;
    if (notches == 0.0)
        return false;
    const double factor = std::pow(kWheelZoom, notches);
    const QPointF point = wheel->position();

    // Zoom one axis around the value under the pointer, given in that axis's own pixels.
    const auto zoom = [&](GraphAxis axis, const QwtScaleMap& map, double pixel) {
        const double at = map.invTransform(pixel);
        const double minimum = m_graph.AxisMinimum(axis);
        const double maximum = m_graph.AxisMaximum(axis);
        m_graph.SetView(axis, at - (at - minimum) * factor, at + (maximum - at) * factor);
    };
    QwtScaleWidget* xWidget = m_graph.axisWidget(QwtPlot::xBottom);
    QwtScaleWidget* yWidget = m_graph.axisWidget(QwtPlot::yLeft);
    if (watched == m_graph.canvas()) {
        zoom(GraphAxis::XAxis, m_graph.canvasMap(QwtPlot::xBottom), point.x());
        zoom(GraphAxis::YAxis1, m_graph.canvasMap(QwtPlot::yLeft), point.y());
    } else if (watched == xWidget) {
        zoom(GraphAxis::XAxis, xWidget->scaleDraw()->scaleMap(), point.x());
    } else if (watched == yWidget) {
        zoom(GraphAxis::YAxis1, yWidget->scaleDraw()->scaleMap(), point.y());
    } else {
        return false;
    }
    return true;
}

} // namespace ventrix::ui
