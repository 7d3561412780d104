#pragma once

#include "platform/CursorPair.h"
#include "platform/GraphControl.h"
#include "platform/GraphRules.h"

#include <string>
#include <vector>

namespace ventrix::fakes {

// A graph that keeps its plot, axis and cursor state as the real one does (points one step
// further along X, automatic scaling fitting the data, written ranges held, the strip-chart
// scroll, cursors standing on the samples) and records the order of the appearance calls.
// DragCursor plays a user's drag of a cursor.
class FakeGraph : public platform::GraphControl {
public:
    struct Axis {
        std::string caption;
        double minimum = 0.0;
        double maximum = 10.0;
        bool autoScale = false;
        bool majorGrid = false;
    };

    void SetLineWidth(int width) override { Log("LineWidth", lineWidth = width); }
    int LineWidth() const override { return lineWidth; }
    void SetLineStyle(int code) override { Log("LineStyle", lineStyle = code); }
    int LineStyle() const override { return lineStyle; }
    void SetPointStyle(int code) override { Log("PointStyle", pointStyle = code); }
    int PointStyle() const override { return pointStyle; }
    void SetFillToBase(bool on) override { Log("Fill", fill = on); }
    bool FillToBase() const override { return fill; }
    void SetMajorGrid(platform::GraphAxis axis, bool on) override;
    bool MajorGrid(platform::GraphAxis axis) const override { return Of(axis).majorGrid; }

    void ClearData() override;
    void AppendPoint(double value) override;
    void SetAxisCaption(platform::GraphAxis axis, const std::string& caption) override
    {
        Of(axis).caption = caption;
    }
    std::string AxisCaption(platform::GraphAxis axis) const override { return Of(axis).caption; }
    void SetAxisMinimum(platform::GraphAxis axis, double value) override;
    double AxisMinimum(platform::GraphAxis axis) const override { return Of(axis).minimum; }
    void SetAxisMaximum(platform::GraphAxis axis, double value) override;
    double AxisMaximum(platform::GraphAxis axis) const override { return Of(axis).maximum; }
    void SetAutoScale(platform::GraphAxis axis, bool on) override;
    bool AutoScale(platform::GraphAxis axis) const override { return Of(axis).autoScale; }
    void AutoScaleNow(platform::GraphAxis axis) override { Fit(axis); }
    void Redraw() override { ++redraws; }

    void SetTrackingMode(int mode) override;
    int TrackingMode() const override { return trackingMode; }
    void SetCursorX(int cursor, double x) override { cursors.SetX(cursor, x, points.size()); }
    double CursorX(int cursor) const override { return cursors.X(cursor, points.size()); }
    double CursorY(int cursor) const override
    {
        return cursors.Y(cursor, points.size(), [this](std::size_t sample) { return points[sample]; });
    }
    void SetCursorMode(int cursor, int mode) override { cursors.SetMode(cursor, mode); }
    int CursorMode(int cursor) const override { return cursors.Mode(cursor); }
    void SetCursorVisible(int cursor, bool visible) override { cursors.SetVisible(cursor, visible); }
    bool CursorVisible(int cursor) const override { return cursors.Visible(cursor); }
    void SetOnCursorChange(CursorChangeHandler handler) override { onCursorChange = std::move(handler); }

    // A user drags visible cursor `cursor` to (x, y): it moves as a write would and the
    // cursor-change event is raised with where it ended up.
    void DragCursor(int cursor, double x, double y = 0.0);

    Axis& Of(platform::GraphAxis axis) { return axis == platform::GraphAxis::XAxis ? xAxis : yAxis; }
    const Axis& Of(platform::GraphAxis axis) const
    {
        return axis == platform::GraphAxis::XAxis ? xAxis : yAxis;
    }

    int lineWidth = 3;
    int lineStyle = 1;
    int pointStyle = 0;
    bool fill = false;
    Axis xAxis;
    Axis yAxis;
    std::vector<double> points;
    int clears = 0;
    int redraws = 0;
    int trackingMode = 6;
    platform::CursorPair cursors;
    CursorChangeHandler onCursorChange;
    std::vector<std::string> calls; // "LineWidth=2", "GridX=1" ...

private:
    void Log(const char* what, int value)
    {
        calls.push_back(std::string(what) + "=" + std::to_string(value));
    }
    void Fit(platform::GraphAxis axis);
    void FitAutomaticAxes();
};

} // namespace ventrix::fakes
