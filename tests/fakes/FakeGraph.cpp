#include "fakes/FakeGraph.h"

#include <algorithm>

namespace ventrix::fakes {

using platform::GraphAxis;

void FakeGraph::SetMajorGrid(GraphAxis axis, bool on)
{
    Of(axis).majorGrid = on;
    Log(axis == GraphAxis::XAxis ? "GridX" : "GridY", on);
}

void FakeGraph::ClearData()
{
    points.clear();
    ++clears;
    FitAutomaticAxes();
}

void FakeGraph::AppendPoint(double value)
{
    points.push_back(value);
    if (!xAxis.autoScale) {
        const auto view = platform::FollowAppendedSample({ xAxis.minimum, xAxis.maximum }, points.size() - 1);
        xAxis.minimum = view.minimum;
        xAxis.maximum = view.maximum;
    }
    FitAutomaticAxes();
}

void FakeGraph::SetAxisMinimum(GraphAxis axis, double value)
{
    Of(axis).autoScale = false;
    Of(axis).minimum = value;
}

void FakeGraph::SetAxisMaximum(GraphAxis axis, double value)
{
    Of(axis).autoScale = false;
    Of(axis).maximum = value;
}

void FakeGraph::SetAutoScale(GraphAxis axis, bool on)
{
    Of(axis).autoScale = on;
    if (on)
        Fit(axis);
}

void FakeGraph::Fit(GraphAxis axis)
{
    Axis& a = Of(axis);
    platform::AxisRange range;
    if (axis == GraphAxis::XAxis) {
        range = platform::FitSampleAxis(points.size());
    } else {
        const auto [low, high] = std::minmax_element(points.begin(), points.end());
        range = points.empty() ? platform::AxisRange { a.minimum, a.maximum }
                               : platform::FitAmplitudeAxis(points.size(), *low, *high, {});
    }
    a.minimum = range.minimum;
    a.maximum = range.maximum;
}

void FakeGraph::FitAutomaticAxes()
{
    for (GraphAxis axis : { GraphAxis::XAxis, GraphAxis::YAxis1 })
        if (Of(axis).autoScale)
            Fit(axis);
}

void FakeGraph::SetTrackingMode(int mode)
{
    if (mode == 2 || mode == 3 || mode == 6)
        trackingMode = mode;
}

void FakeGraph::DragCursor(int cursor, double x, double y)
{
    if (!cursors.Visible(cursor) || trackingMode != 2)
        return;
    SetCursorX(cursor, x);
    cursors.SetFreeY(cursor, y);
    if (onCursorChange)
        onCursorChange(cursor, CursorX(cursor), CursorY(cursor));
}

} // namespace ventrix::fakes
