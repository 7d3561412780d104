#pragma once

#include <string>

namespace ventrix::platform {

enum class GraphAxis { XAxis, YAxis1 };

// The measurement graph GRAPH_CWGraph: one X axis "XAxis", one amplitude axis "YAxis-1", one
// plot "Plot-1". Plot appearance uses the graph's own codes: line style 1 Solid, 2 Step, 4 Dash,
// 5 Dot, 6 Dash Dot; point style 0 none, 1 empty square, 2 solid square, 3 asterisk, 6 solid
// diamond, 16 cross, 22 empty diamond. Every setter can be read back.
class GraphControl {
public:
    virtual ~GraphControl() = default;

    // Plot appearance
    virtual void SetLineWidth(int width) = 0;
    virtual int LineWidth() const = 0;
    virtual void SetLineStyle(int code) = 0;
    virtual int LineStyle() const = 0;
    virtual void SetPointStyle(int code) = 0;
    virtual int PointStyle() const = 0;
    virtual void SetFillToBase(bool on) = 0;
    virtual bool FillToBase() const = 0;
    virtual void SetMajorGrid(GraphAxis axis, bool on) = 0;
    virtual bool MajorGrid(GraphAxis axis) const = 0;

    // Data and axes
    virtual void ClearData() = 0;
    virtual void AppendPoint(double value) = 0;
    virtual void SetAxisCaption(GraphAxis axis, const std::string& caption) = 0;
    virtual void SetAxisMinimum(GraphAxis axis, double value) = 0;
    virtual double AxisMinimum(GraphAxis axis) const = 0;
    virtual void SetAxisMaximum(GraphAxis axis, double value) = 0;
    virtual double AxisMaximum(GraphAxis axis) const = 0;
    virtual void SetAutoScale(GraphAxis axis, bool on) = 0;
    virtual void AutoScaleNow(GraphAxis axis) = 0;
    virtual void Redraw() = 0;
};

} // namespace ventrix::platform
