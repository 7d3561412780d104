#pragma once

#include <functional>
#include <string>

namespace ventrix::platform {

enum class GraphAxis { XAxis, YAxis1 };

// The measurement graph GRAPH_CWGraph: one X axis "XAxis", one amplitude axis "YAxis-1", one
// plot "Plot-1" and two cursors (numbers 1 and 2). Plot appearance uses the graph's own codes:
// line style 1 Solid, 2 Step, 4 Dash, 5 Dot, 6 Dash Dot; point style 0 none, 1 empty square,
// 2 solid square, 3 asterisk, 6 solid diamond, 16 cross, 22 empty diamond. Every setter can be
// read back.
//
// How the graph behaves (GraphRules.h holds the shared rules):
// - AppendPoint puts the value one step further along X: the n-th value since the last clear
//   is at sample number n - 1.
// - An axis with automatic scaling fits the data after every change of it; writing a minimum or
//   maximum turns automatic scaling off, and the written range stays until automatic scaling is
//   asked for again. AutoScaleNow fits the data once and leaves the flag as it is.
// - While X is not scaling automatically, a point appended just past the right end of a view
//   that showed the newest point scrolls X along with it, its span kept (a strip chart).
// - Zooming, panning and the mouse wheel change the axis ranges as writes do: what they leave is
//   what the minimum and maximum read back.
// - Tracking mode: 6 zooms to a dragged rectangle, 3 pans, 2 drags the cursors; other codes are
//   ignored. The wheel zooms around the pointer in every mode.
// - A cursor in mode 1 stands on the samples: its X is the sample number nearest to where it was
//   put (within the data) and its Y that sample's value; with no data it stays where it was put,
//   Y 0. In mode 0 it stays where it was put or dragged. Dragging a visible cursor raises the
//   cursor-change event with the cursor's number and new position; writes do not.
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
    virtual std::string AxisCaption(GraphAxis axis) const = 0;
    virtual void SetAxisMinimum(GraphAxis axis, double value) = 0;
    virtual double AxisMinimum(GraphAxis axis) const = 0;
    virtual void SetAxisMaximum(GraphAxis axis, double value) = 0;
    virtual double AxisMaximum(GraphAxis axis) const = 0;
    virtual void SetAutoScale(GraphAxis axis, bool on) = 0;
    virtual bool AutoScale(GraphAxis axis) const = 0;
    virtual void AutoScaleNow(GraphAxis axis) = 0;
    virtual void Redraw() = 0;

    // Mouse tracking and cursors
    virtual void SetTrackingMode(int mode) = 0;
    virtual int TrackingMode() const = 0;
    virtual void SetCursorX(int cursor, double x) = 0;
    virtual double CursorX(int cursor) const = 0;
    virtual double CursorY(int cursor) const = 0;
    virtual void SetCursorMode(int cursor, int mode) = 0;
    virtual int CursorMode(int cursor) const = 0;
    virtual void SetCursorVisible(int cursor, bool visible) = 0;
    virtual bool CursorVisible(int cursor) const = 0;
    using CursorChangeHandler = std::function<void(int cursor, double x, double y)>;
    virtual void SetOnCursorChange(CursorChangeHandler handler) = 0;
};

} // namespace ventrix::platform
