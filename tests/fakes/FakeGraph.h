#pragma once

#include "platform/GraphControl.h"

#include <string>
#include <vector>

namespace ventrix::fakes {

// A graph that records its plot and axis state, and the order of the calls made to it.
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
    void AppendPoint(double value) override { points.push_back(value); }
    void SetAxisCaption(platform::GraphAxis axis, const std::string& caption) override
    {
        Of(axis).caption = caption;
    }
    void SetAxisMinimum(platform::GraphAxis axis, double value) override { Of(axis).minimum = value; }
    double AxisMinimum(platform::GraphAxis axis) const override { return Of(axis).minimum; }
    void SetAxisMaximum(platform::GraphAxis axis, double value) override { Of(axis).maximum = value; }
    double AxisMaximum(platform::GraphAxis axis) const override { return Of(axis).maximum; }
    void SetAutoScale(platform::GraphAxis axis, bool on) override { Of(axis).autoScale = on; }
    void AutoScaleNow(platform::GraphAxis axis) override;
    void Redraw() override { ++redraws; }

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
    std::vector<std::string> calls; // "LineWidth=2", "GridX=1" ...

private:
    void Log(const char* what, int value)
    {
        calls.push_back(std::string(what) + "=" + std::to_string(value));
    }
};

} // namespace ventrix::fakes
