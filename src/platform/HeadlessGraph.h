#pragma once

#include "platform/GraphControl.h"

#include <array>
#include <string>

namespace ventrix::platform {

// The graph of a program without a window: it keeps the settings the handlers write and read
// back (appearance, axis captions and ranges, scaling flags, tracking mode, cursors) and drops
// every point, so a log of days costs no memory here. Automatic scaling has no data to fit and
// leaves the ranges as they were written; cursors never move by themselves.
class HeadlessGraph : public GraphControl {
public:
    void SetLineWidth(int width) override { m_lineWidth = width; }
    int LineWidth() const override { return m_lineWidth; }
    void SetLineStyle(int code) override { m_lineStyle = code; }
    int LineStyle() const override { return m_lineStyle; }
    void SetPointStyle(int code) override { m_pointStyle = code; }
    int PointStyle() const override { return m_pointStyle; }
    void SetFillToBase(bool on) override { m_fill = on; }
    bool FillToBase() const override { return m_fill; }
    void SetMajorGrid(GraphAxis axis, bool on) override { At(axis).grid = on; }
    bool MajorGrid(GraphAxis axis) const override { return At(axis).grid; }

    void ClearData() override { }
    void AppendPoint(double) override { }
    void SetAxisCaption(GraphAxis axis, const std::string& caption) override { At(axis).caption = caption; }
    std::string AxisCaption(GraphAxis axis) const override { return At(axis).caption; }
    void SetAxisMinimum(GraphAxis axis, double value) override;
    double AxisMinimum(GraphAxis axis) const override { return At(axis).minimum; }
    void SetAxisMaximum(GraphAxis axis, double value) override;
    double AxisMaximum(GraphAxis axis) const override { return At(axis).maximum; }
    void SetAutoScale(GraphAxis axis, bool on) override { At(axis).autoScale = on; }
    bool AutoScale(GraphAxis axis) const override { return At(axis).autoScale; }
    void AutoScaleNow(GraphAxis) override { }
    void Redraw() override { }

    void SetTrackingMode(int mode) override { m_trackingMode = mode; }
    int TrackingMode() const override { return m_trackingMode; }
    void SetCursorX(int cursor, double x) override { Cursor(cursor).x = x; }
    double CursorX(int cursor) const override { return Cursor(cursor).x; }
    double CursorY(int) const override { return 0.0; }
    void SetCursorMode(int cursor, int mode) override { Cursor(cursor).mode = mode; }
    int CursorMode(int cursor) const override { return Cursor(cursor).mode; }
    void SetCursorVisible(int cursor, bool visible) override { Cursor(cursor).visible = visible; }
    bool CursorVisible(int cursor) const override { return Cursor(cursor).visible; }
    void SetOnCursorChange(CursorChangeHandler) override { }

private:
    struct Axis {
        std::string caption;
        double minimum = 0.0;
        double maximum = 10.0;
        bool autoScale = false;
        bool grid = false;
    };
    struct CursorState {
        double x = 0.0;
        int mode = 0;
        bool visible = false;
    };
    Axis& At(GraphAxis axis) { return m_axes[axis == GraphAxis::XAxis ? 0 : 1]; }
    const Axis& At(GraphAxis axis) const { return m_axes[axis == GraphAxis::XAxis ? 0 : 1]; }
    // Cursors 1 and 2; any other number shares the second.
    CursorState& Cursor(int cursor) { return m_cursors[cursor == 1 ? 0 : 1]; }
    const CursorState& Cursor(int cursor) const { return m_cursors[cursor == 1 ? 0 : 1]; }

    std::array<Axis, 2> m_axes {};
    std::array<CursorState, 2> m_cursors {};
    int m_lineWidth = 0;
    int m_lineStyle = 1;
    int m_pointStyle = 0;
    int m_trackingMode = 0;
    bool m_fill = false;
};

} // namespace ventrix::platform
