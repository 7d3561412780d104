#pragma once

#include <QObject>
#include <QPoint>

namespace ventrix::ui {

class QwtGraphAdapter;

// The graph's own mouse handling, by its tracking mode: in Zoom a dragged rectangle becomes the
// view, in Pan a drag moves the view, in Cursor a press takes the nearest visible cursor and a
// drag moves it over the samples. The wheel zooms around the pointer in every mode (over an
// axis, that axis only). It only turns events into the graph's view and cursor calls.
class GraphMouse : public QObject {
public:
    explicit GraphMouse(QwtGraphAdapter& graph);

    bool eventFilter(QObject* watched, QEvent* event) override;

    // One notch of the wheel shows this much of the view's span (wheel up zooms in).
    static constexpr double kWheelZoom = 0.8;
    // A dragged rectangle narrower or lower than this is not a zoom.
    static constexpr int kMinimumBand = 4;

private:
    enum class Drag { None, Zoom, Pan, Cursor };

    bool CanvasEvent(QEvent* event);
    bool Wheel(QObject* watched, QEvent* event);

    QwtGraphAdapter& m_graph;
    Drag m_drag = Drag::None;
    QPoint m_origin;
    double m_startX[2] {};
    double m_startY[2] {};
    int m_cursor = 0;
};

} // namespace ventrix::ui
