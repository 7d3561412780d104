#pragma once

#include <QPolygonF>
#include <QRectF>

#include <cstddef>
#include <utility>
#include <vector>

class QwtScaleMap;

namespace ventrix::ui {

// The samples of the plotted curve: one value per sample, its x coordinate being the sample
// index (0, 1, 2 ...), stored as 4-byte floats (the sample log is the record; the graph is a
// view of it), with the extremes of each block of samples beside them. Says what the line through them covers
// in each pixel column of a canvas, at a cost bounded by the canvas width plus the samples in view, so that a
// full log draws as fast as a short one.
class SampleSeries {
public:
    // The pixel rows `top`..`bottom` that the line covers in column `x`, as a one-pixel line
    // is rasterised: the line's value at the column's centre, every sample in the column, and
    // the run toward the next column's value. `smallest` and `largest` are the column's own
    // extreme samples (its centre value when it holds none).
    struct Column {
        int x;
        int top;
        int bottom;
        float smallest;
        float largest;
    };

    void Append(double value);
    void Clear();
    std::size_t Count() const { return m_values.size(); }
    double Value(std::size_t index) const { return m_values[index]; }
    double Minimum() const { return m_min; }
    double Maximum() const { return m_max; }
    std::size_t MemoryBytes() const
    {
        return (m_values.capacity() + m_blockLow.capacity() + m_blockHigh.capacity()) * sizeof(float);
    }

    // All samples; an invalid rectangle when there are none.
    QRectF BoundingRect() const;

    // True when more than kRawPointsPerColumn samples fall in each of `columns` pixel columns.
    bool IsDense(const QwtScaleMap& xMap, double columns) const;

    // The samples (index, value) visible through xMap, with one more beyond each edge.
    QPolygonF VisiblePoints(const QwtScaleMap& xMap) const;

    // The columns from `left` up to `right` (paint coordinates of xMap) that the line crosses:
    // straight from sample to sample, or held until the next sample and then stepping.
    std::vector<Column> Columns(
        const QwtScaleMap& xMap, const QwtScaleMap& yMap, int left, int right, bool steps) const;

    // Up to this many samples per pixel column get a symbol each.
    static constexpr double kRawPointsPerColumn = 2.0;
    // Samples summarised by one entry of the block extremes.
    static constexpr std::size_t kBlock = 32;

private:
    // The smallest and largest of samples begin..end-1 (begin < end).
    void Extremes(std::size_t begin, std::size_t end, float& smallest, float& largest) const;

    // First and one-past-last sample index visible through xMap, one beyond each edge.
    std::pair<std::size_t, std::size_t> VisibleRange(const QwtScaleMap& xMap) const;

    std::vector<float> m_values;
    std::vector<float> m_blockLow; // the smallest of each kBlock samples, for dense columns
    std::vector<float> m_blockHigh;
    double m_min = 0.0;
    double m_max = 0.0;
};

} // namespace ventrix::ui
