#pragma once

#include "platform/CursorPair.h"
#include "platform/GraphControl.h"

#include <QColor>
#include <qwt_plot.h>

#include <array>

class QwtPlotGrid;

namespace ventrix::ui {

class GraphMouse;
class GraphOverlay;
class SampleCurve;
class SampleSeries;

// The measurement graph GRAPH_CWGraph on a QwtPlot: the curve "Plot-1" over the samples
// (x = 0, 1, 2 ...), the axes "XAxis" (bottom, whole sample numbers) and "YAxis-1" (left, SI
// prefixed labels), a grid for the major grid lines, and the two cursors drawn over the canvas.
// Keeps every axis range and cursor position itself and follows the graph's rules (GraphRules.h)
// exactly as the test fake does; zoom, pan, wheel and cursor drags (GraphMouse) go through the
// same calls. Translates the style codes into Qwt pens, curve styles and symbols; unknown codes
// are ignored. Screen colours: black background, yellow axes and labels, green line, blue fill.
// Changes are drawn together on the next pass of the event loop, or at once by Redraw().
class QwtGraphAdapter : public QwtPlot, public platform::GraphControl {
    Q_OBJECT
public:
    explicit QwtGraphAdapter(QWidget* parent = nullptr);
    ~QwtGraphAdapter() override;

    void SetLineWidth(int width) override;
    int LineWidth() const override { return m_lineWidth; }
    void SetLineStyle(int code) override;
    int LineStyle() const override { return m_lineStyle; }
    void SetPointStyle(int code) override;
    int PointStyle() const override { return m_pointStyle; }
    void SetFillToBase(bool on) override;
    bool FillToBase() const override { return m_fill; }
    void SetMajorGrid(platform::GraphAxis axis, bool on) override;
    bool MajorGrid(platform::GraphAxis axis) const override;

    void ClearData() override;
    void AppendPoint(double value) override;
    void SetAxisCaption(platform::GraphAxis axis, const std::string& caption) override;
    std::string AxisCaption(platform::GraphAxis axis) const override;
    void SetAxisMinimum(platform::GraphAxis axis, double value) override;
    double AxisMinimum(platform::GraphAxis axis) const override { return m_axes[Index(axis)].minimum; }
    void SetAxisMaximum(platform::GraphAxis axis, double value) override;
    double AxisMaximum(platform::GraphAxis axis) const override { return m_axes[Index(axis)].maximum; }
    void SetAutoScale(platform::GraphAxis axis, bool on) override;
    bool AutoScale(platform::GraphAxis axis) const override { return m_axes[Index(axis)].autoScale; }
    void AutoScaleNow(platform::GraphAxis axis) override;
    void Redraw() override;

    void SetTrackingMode(int mode) override;
    int TrackingMode() const override { return m_trackingMode; }
    void SetCursorX(int cursor, double x) override;
    double CursorX(int cursor) const override;
    double CursorY(int cursor) const override;
    void SetCursorMode(int cursor, int mode) override;
    int CursorMode(int cursor) const override { return m_cursors.Mode(cursor); }
    void SetCursorVisible(int cursor, bool visible) override;
    bool CursorVisible(int cursor) const override { return m_cursors.Visible(cursor); }
    void SetOnCursorChange(CursorChangeHandler handler) override { m_onCursorChange = std::move(handler); }

    // What the mouse does (GraphMouse): a new view of an axis (automatic scaling off), the
    // visible cursor nearest to a canvas column (0 when none is shown), and a cursor dragged to
    // a canvas point, which raises the cursor-change event.
    void SetView(platform::GraphAxis axis, double minimum, double maximum);
    int NearestCursor(double column) const;
    void DragCursor(int cursor, const QPointF& canvasPoint);

    // For checks, printing and the mouse: the curve, its samples, the grid and the overlay.
    const SampleCurve& Curve() const { return *m_curve; }
    const SampleSeries& Samples() const;
    const QwtPlotGrid& GridItem() const { return *m_grid; }
    GraphOverlay& Overlay() { return *m_overlay; }

    static const QColor kBackground;
    static const QColor kAxisColour;
    static const QColor kLineColour;
    static const QColor kFillColour;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct AxisState {
        double minimum = 0.0;
        double maximum = 10.0;
        bool autoScale = false;
    };
    static std::size_t Index(platform::GraphAxis axis) { return axis == platform::GraphAxis::XAxis ? 0 : 1; }
    static int QwtAxis(platform::GraphAxis axis);

    void ApplyPen();
    void Fit(platform::GraphAxis axis);
    void ApplyScale(platform::GraphAxis axis);
    void ScheduleReplot();
    void UpdateOverlay();

    SampleCurve* m_curve; // owned by the plot
    QwtPlotGrid* m_grid; // owned by the plot
    GraphOverlay* m_overlay; // owned by the canvas
    GraphMouse* m_mouse; // owned by this widget
    std::array<AxisState, 2> m_axes {};
    platform::CursorPair m_cursors;
    int m_trackingMode = 6;
    CursorChangeHandler m_onCursorChange;
    int m_lineWidth = 3;
    int m_lineStyle = 1;
    int m_pointStyle = 0;
    bool m_fill = false;
    bool m_replotPending = false;
};

} // namespace ventrix::ui
