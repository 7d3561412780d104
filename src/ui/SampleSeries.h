#pragma once

#include <QPolygonF>
#include <QRectF>

#include <cstddef>
#include <vector>

class QwtScaleMap;

namespace ventrix::ui {

// The samples of the plotted curve: one value per sample, its x coordinate being the sample
// index (0, 1, 2 ...), stored as 4-byte floats (the sample log is the record; the graph is a
// view of it). Gives what to draw for a visible x range: the samples themselves while there are
// few per pixel column, otherwise per pixel column the range of values the line passes through,
// so that a full log draws at a cost bounded by the canvas width.
class SampleSeries {
public:
    // What the line draws in one pixel column of a dense run: `low`..`high` covers the column's
    // samples and the step into them from the sample before; `smallest` and `largest` are the
    // column's own smallest and largest samples.
    struct Column {
        int x;
        float low;
        float high;
        float smallest;
        float largest;
    };

    void Append(double value);
    void Clear();
    std::size_t Count() const { return m_values.size(); }
    double Value(std::size_t index) const { return m_values[index]; }
    double Minimum() const { return m_min; }
    double Maximum() const { return m_max; }
    std::size_t MemoryBytes() const { return m_values.capacity() * sizeof(float); }

    // All samples; an invalid rectangle when there are none.
    QRectF BoundingRect() const;

    // True when more than kRawPointsPerColumn samples fall in each of `columns` pixel columns.
    bool IsDense(const QwtScaleMap& xMap, double columns) const;

    // The samples (index, value) visible through xMap, with one more beyond each edge so that
    // lines leave the canvas.
    QPolygonF VisiblePoints(const QwtScaleMap& xMap) const;

    // One entry per pixel column from `left` up to `right` (paint coordinates of xMap) that
    // holds samples.
    std::vector<Column> Columns(const QwtScaleMap& xMap, double left, double right) const;

    // Up to this many samples per pixel column are drawn as they are.
    static constexpr double kRawPointsPerColumn = 2.0;

private:
    // First and one-past-last sample index visible through xMap, one beyond each edge.
    std::pair<std::size_t, std::size_t> VisibleRange(const QwtScaleMap& xMap) const;

    std::vector<float> m_values;
    double m_min = 0.0;
    double m_max = 0.0;
};

} // namespace ventrix::ui
