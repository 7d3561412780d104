#pragma once

#include <QColor>
#include <QRect>
#include <qwt_widget_overlay.h>

#include <array>

namespace ventrix::ui {

// Drawn over the graph's canvas without replotting it: the two measurement cursors (a vertical
// line, a box on the sample the cursor stands on, the cursor's number at the top) and the
// rectangle being dragged in Zoom mode. Positions are canvas pixels given by the graph; the
// overlay only paints them.
class GraphOverlay : public QwtWidgetOverlay {
public:
    explicit GraphOverlay(QWidget* canvas);

    // Cursor 1 or 2 at pixel column x with its sample at row y (no box when y is off the canvas).
    void SetCursor(int cursor, bool visible, double x, double y);
    void SetBand(const QRect& band); // an empty rectangle shows none

    static const std::array<QColor, 2> kCursorColours;

protected:
    void drawOverlay(QPainter* painter) const override;
    QRegion maskHint() const override;

private:
    struct Mark {
        bool visible = false;
        double x = 0.0;
        double y = 0.0;
    };
    QRect MarkRect(const Mark& mark) const;

    std::array<Mark, 2> m_marks {};
    QRect m_band;
};

} // namespace ventrix::ui
