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

FakeGraph::Cursor* FakeGraph::Find(int cursor)
{
    return cursor == 1 || cursor == 2 ? &cursors[static_cast<std::size_t>(cursor - 1)] : nullptr;
}

const FakeGraph::Cursor* FakeGraph::Find(int cursor) const
{
    return const_cast<FakeGraph*>(this)->Find(cursor);
}

void FakeGraph::SetCursorX(int cursor, double x)
{
    if (Cursor* c = Find(cursor))
        c->x = c->mode == 1 && !points.empty()
            ? static_cast<double>(platform::NearestSample(x, points.size()))
            : x;
}

double FakeGraph::CursorX(int cursor) const
{
    const Cursor* c = Find(cursor);
    if (c == nullptr)
        return 0.0;
    if (c->mode == 1 && !points.empty())
        return static_cast<double>(platform::NearestSample(c->x, points.size()));
    return c->x;
}

double FakeGraph::CursorY(int cursor) const
{
    const Cursor* c = Find(cursor);
    if (c == nullptr)
        return 0.0;
    if (c->mode == 1)
        return points.empty() ? 0.0 : points[platform::NearestSample(c->x, points.size())];
    return c->y;
}

void FakeGraph::SetCursorMode(int cursor, int mode)
{
    if (Cursor* c = Find(cursor))
        c->mode = mode;
}

int FakeGraph::CursorMode(int cursor) const
{
    const Cursor* c = Find(cursor);
    return c ? c->mode : 0;
}

void FakeGraph::SetCursorVisible(int cursor, bool visible)
{
    if (Cursor* c = Find(cursor))
        c->visible = visible;
}

bool FakeGraph::CursorVisible(int cursor) const
{
    const Cursor* c = Find(cursor);
    return c && c->visible;
}

void FakeGraph::DragCursor(int cursor, double x, double y)
{
    Cursor* c = Find(cursor);
    if (c == nullptr || !c->visible || trackingMode != 2)
        return;
    SetCursorX(cursor, x);
    c->y = y;
    if (onCursorChange)
        onCursorChange(cursor, CursorX(cursor), CursorY(cursor));
}

} // namespace ventrix::fakes
