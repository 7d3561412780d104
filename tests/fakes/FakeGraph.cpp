#include "fakes/FakeGraph.h"

#include <algorithm>

namespace ventrix::fakes {

void FakeGraph::SetMajorGrid(platform::GraphAxis axis, bool on)
{
    Of(axis).majorGrid = on;
    Log(axis == platform::GraphAxis::XAxis ? "GridX" : "GridY", on);
}

void FakeGraph::ClearData()
{
    points.clear();
    ++clears;
}

void FakeGraph::AutoScaleNow(platform::GraphAxis axis)
{
    Axis& a = Of(axis);
    if (axis == platform::GraphAxis::XAxis) {
        a.minimum = 0.0;
        a.maximum = points.empty() ? 10.0 : static_cast<double>(points.size() - 1);
    } else if (!points.empty()) {
        const auto [low, high] = std::minmax_element(points.begin(), points.end());
        a.minimum = *low;
        a.maximum = *high;
    }
}

} // namespace ventrix::fakes
