#include "ui/SampleSeries.h"

#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace ventrix::ui {

void SampleSeries::Append(double value)
{
    if (m_values.empty()) {
        m_min = m_max = value;
    } else {
        m_min = std::min(m_min, value);
        m_max = std::max(m_max, value);
    }
    m_values.push_back(value);
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

QPolygonF SampleSeries::VisiblePoints(const QwtScaleMap& xMap, double columns) const
{
    if (m_values.empty())
        return {};
    const double lastIndex = static_cast<double>(m_values.size() - 1);
    const double low = std::min(xMap.s1(), xMap.s2());
    const double high = std::max(xMap.s1(), xMap.s2());
    if (high < 0.0 || low > lastIndex)
        return {};
    const auto first = static_cast<std::size_t>(std::clamp(std::floor(low) - 1.0, 0.0, lastIndex));
    const auto last = static_cast<std::size_t>(std::clamp(std::ceil(high) + 1.0, 0.0, lastIndex));

    if (static_cast<double>(last - first + 1) > kRawPointsPerColumn * std::max(1.0, columns))
        return Thinned(first, last, xMap);
    QPolygonF points;
    points.reserve(static_cast<int>(last - first + 1));
    for (std::size_t i = first; i <= last; ++i)
        points.append(QPointF(static_cast<double>(i), m_values[i]));
    return points;
}

QPolygonF SampleSeries::Thinned(std::size_t first, std::size_t last, const QwtScaleMap& xMap) const
{
    QPolygonF points;
    std::size_t minIndex = first;
    std::size_t maxIndex = first;
    auto flush = [&] {
        const std::size_t a = std::min(minIndex, maxIndex);
        const std::size_t b = std::max(minIndex, maxIndex);
        points.append(QPointF(static_cast<double>(a), m_values[a]));
        if (b != a)
            points.append(QPointF(static_cast<double>(b), m_values[b]));
    };
    double column = std::floor(xMap.transform(static_cast<double>(first)));
    for (std::size_t i = first + 1; i <= last; ++i) {
        const double c = std::floor(xMap.transform(static_cast<double>(i)));
        if (c != column) {
            flush();
            column = c;
            minIndex = maxIndex = i;
            continue;
        }
        if (m_values[i] < m_values[minIndex])
            minIndex = i;
        if (m_values[i] > m_values[maxIndex])
            maxIndex = i;
    }
    flush();
    return points;
}

} // namespace ventrix::ui
