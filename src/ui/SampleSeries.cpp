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
    if (m_values.size() % kBlock == 0) {
        m_blockLow.push_back(stored);
        m_blockHigh.push_back(stored);
    } else {
        m_blockLow.back() = std::min(m_blockLow.back(), stored);
        m_blockHigh.back() = std::max(m_blockHigh.back(), stored);
    }
    m_values.push_back(stored);
}

void SampleSeries::Extremes(std::size_t begin, std::size_t end, float& smallest, float& largest) const
{
    smallest = largest = m_values[begin];
    const auto scan = [&](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i) {
            const float v = m_values[i];
            smallest = v < smallest ? v : smallest;
            largest = v > largest ? v : largest;
        }
    };
    const std::size_t firstBlock = (begin + kBlock - 1) / kBlock;
    const std::size_t endBlock = end / kBlock;
    if (firstBlock >= endBlock) {
        scan(begin, end);
        return;
    }
    scan(begin, firstBlock * kBlock);
    for (std::size_t b = firstBlock; b < endBlock; ++b) {
        smallest = std::min(smallest, m_blockLow[b]);
        largest = std::max(largest, m_blockHigh[b]);
    }
    scan(endBlock * kBlock, end);
}

void SampleSeries::Clear()
{
    m_values.clear();
    m_blockLow.clear();
    m_blockHigh.clear();
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
    const QwtScaleMap& xMap, const QwtScaleMap& yMap, int left, int right, bool steps) const
{
    std::vector<Column> columns;
    if (m_values.empty() || xMap.s1() >= xMap.s2() || xMap.p1() >= xMap.p2())
        return columns;
    const std::size_t count = m_values.size();
    const double last = static_cast<double>(count - 1);
    const auto row = [&](double value) {
        return static_cast<int>(std::lround(std::clamp(yMap.transform(value), -1e6, 1e6)));
    };
    // The first sample at or right of pixel edge `px`.
    const auto startAt = [&](double px) {
        return static_cast<std::size_t>(
            std::clamp(std::ceil(xMap.invTransform(px)), 0.0, static_cast<double>(count)));
    };
    // The line's value at pixel x, where there is data.
    const auto valueAt = [&](double px, float& value) {
        const double s = xMap.invTransform(px);
        if (!(s >= 0.0 && s <= last))
            return false;
        const auto i = static_cast<std::size_t>(s);
        value = m_values[i];
        if (!steps && i + 1 < count)
            value += static_cast<float>(s - static_cast<double>(i)) * (m_values[i + 1] - m_values[i]);
        return true;
    };

    columns.reserve(static_cast<std::size_t>(std::max(0, right - left)));
    std::size_t begin = startAt(left);
    for (int x = left; x < right; ++x) {
        const std::size_t end = std::max(begin, startAt(x + 1));
        float centre = 0.0f;
        const bool hasCentre = valueAt(x + 0.5, centre);
        if (!hasCentre && begin == end) {
            begin = end;
            continue;
        }
        // The column's own samples, then everything the line covers here.
        float smallest = centre;
        float largest = centre;
        if (begin < end)
            Extremes(begin, end, smallest, largest);
        float low = hasCentre ? std::min(centre, smallest) : smallest;
        float high = hasCentre ? std::max(centre, largest) : largest;
        if (steps && begin < end && begin > 0) { // the step from the value held before
            low = std::min(low, m_values[begin - 1]);
            high = std::max(high, m_values[begin - 1]);
        }
        Column column { x, row(high), row(low), smallest, largest };
        if (column.top > column.bottom) // an axis drawn upside down
            std::swap(column.top, column.bottom);

        // A straight line runs from the previous column's value to this one's: the rows in
        // between belong to the previous column.
        if (!steps && !columns.empty() && columns.back().x == x - 1) {
            Column& previous = columns.back();
            const int entry = row(hasCentre ? centre : m_values[begin]);
            if (entry < previous.top)
                previous.top = entry + 1;
            else if (entry > previous.bottom)
                previous.bottom = entry - 1;
        }
        columns.push_back(column);
        begin = end;
    }
    return columns;
}

} // namespace ventrix::ui
