#include "ui/SampleSeries.h"

#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace ventrix::ui {

void SampleSeries::Append(double value)
{
    const float stored = static_cast<float>(value);
    if (m_values.empty()) {
        m_min = m_max = stored;
    } else {
        m_min = std::min<double>(m_min, stored);
        m_max = std::max<double>(m_max, stored);
    }
    m_values.push_back(stored);
}

void SampleSeries::Clear()
{
    m_values.clear();
    m_min = m_max = 0.0;
}

QRectF SampleSeries::BoundingRect() const
{
    if (m_values.empty())
        return { 1.0, 1.0, -2.0, -2.0 }; // the plot's "no data" rectangle
    return { 0.0, m_min, static_cast<double>(m_values.size() - 1), m_max - m_min };
}

std::pair<std::size_t, std::size_t> SampleSeries::VisibleRange(const QwtScaleMap& xMap) const
{
    if (m_values.empty())
        return { 0, 0 };
    const double lastIndex = static_cast<double>(m_values.size() - 1);
    const double low = std::min(xMap.s1(), xMap.s2());
    const double high = std::max(xMap.s1(), xMap.s2());
    if (high < 0.0 || low > lastIndex)
        return { 0, 0 };
    const auto first = static_cast<std::size_t>(std::clamp(std::floor(low) - 1.0, 0.0, lastIndex));
    const auto last = static_cast<std::size_t>(std::clamp(std::ceil(high) + 1.0, 0.0, lastIndex));
    return { first, last + 1 };
}

bool SampleSeries::IsDense(const QwtScaleMap& xMap, double columns) const
{
    const auto [first, end] = VisibleRange(xMap);
    return static_cast<double>(end - first) > kRawPointsPerColumn * std::max(1.0, columns);
}

QPolygonF SampleSeries::VisiblePoints(const QwtScaleMap& xMap) const
{
    const auto [first, end] = VisibleRange(xMap);
    QPolygonF points;
    points.reserve(static_cast<int>(end - first));
    for (std::size_t i = first; i < end; ++i)
        points.append(QPointF(static_cast<double>(i), m_values[i]));
    return points;
}

std::vector<SampleSeries::Column> SampleSeries::Columns(
    const QwtScaleMap& xMap, double left, double right) const
{
    std::vector<Column> columns;
    if (m_values.empty() || xMap.s1() >= xMap.s2() || xMap.p1() >= xMap.p2())
        return columns;
    const double count = static_cast<double>(m_values.size());
    // The first sample at or right of pixel edge `px`.
    const auto startAt = [&](double px) {
        return static_cast<std::size_t>(std::clamp(std::ceil(xMap.invTransform(px)), 0.0, count));
    };
    const int firstColumn = static_cast<int>(std::floor(left));
    const int endColumn = static_cast<int>(std::ceil(right));
    columns.reserve(static_cast<std::size_t>(std::max(0, endColumn - firstColumn)));
    std::size_t begin = startAt(firstColumn);
    for (int x = firstColumn; x < endColumn; ++x) {
        const std::size_t end = startAt(x + 1);
        if (begin < end) {
            float smallest = m_values[begin];
            float largest = smallest;
            for (std::size_t i = begin + 1; i < end; ++i) {
                const float v = m_values[i];
                smallest = v < smallest ? v : smallest;
                largest = v > largest ? v : largest;
            }
            Column column { x, smallest, largest, smallest, largest };
            if (begin > 0) { // the line from the sample before
                column.low = std::min(column.low, m_values[begin - 1]);
                column.high = std::max(column.high, m_values[begin - 1]);
            }
            columns.push_back(column);
        }
        begin = std::max(begin, end);
    }
    return columns;
}

} // namespace ventrix::ui
