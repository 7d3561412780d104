#pragma once

#include <QPolygonF>
#include <QRectF>

#include <cstddef>
#include <vector>

class QwtScaleMap;

namespace ventrix::ui {

// The samples of the plotted curve: one value per sample, its x coordinate being the sample
// index (0, 1, 2 ...). Gives the points to draw for a visible x range: all of them while there
// are few per pixel column, otherwise only the smallest and largest value of each column in the
// order they were taken, which draws the same picture at a cost bounded by the canvas width.
class SampleSeries {
public:
    void Append(double value);
    void Clear();
    std::size_t Count() const { return m_values.size(); }
    double Value(std::size_t index) const { return m_values[index]; }

    // All samples; an invalid rectangle when there are none.
    QRectF BoundingRect() const;

    // The points (sample index, value) that draw the samples visible through xMap on a canvas
    // `columns` pixels wide, with one more sample beyond each edge so lines leave the canvas.
    QPolygonF VisiblePoints(const QwtScaleMap& xMap, double columns) const;

    // Up to this many samples per pixel column are drawn as they are.
    static constexpr double kRawPointsPerColumn = 4.0;

private:
    QPolygonF Thinned(std::size_t first, std::size_t last, const QwtScaleMap& xMap) const;

    std::vector<double> m_values;
    double m_min = 0.0;
    double m_max = 0.0;
};

} // namespace ventrix::ui
