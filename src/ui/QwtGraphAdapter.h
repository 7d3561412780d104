#pragma once

#include "platform/GraphControl.h"

#include <QColor>
#include <qwt_plot.h>

#include <array>

class QwtPlotGrid;

namespace ventrix::ui {

class SampleCurve;
class SampleSeries;

// The measurement graph GRAPH_CWGraph on a QwtPlot: the curve "Plot-1" over the samples
// (x = 0, 1, 2 ...), the axes "XAxis" (bottom) and "YAxis-1" (left), and a grid for the major
// grid lines. Translates the graph's style codes into Qwt pens, curve styles and symbols and
// keeps every value it was given so it can be read back; unknown codes are ignored. Screen
// colours: black background, yellow axes and labels, green line, blue fill. Changes are drawn
// together on the next pass of the event loop, or at once by Redraw().
class QwtGraphAdapter : public QwtPlot, public platform::GraphControl {
    Q_OBJECT
public:
    explicit QwtGraphAdapter(QWidget* parent = nullptr);

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
    void SetAxisMinimum(platform::GraphAxis axis, double value) override;
    double AxisMinimum(platform::GraphAxis axis) const override;
    void SetAxisMaximum(platform::GraphAxis axis, double value) override;
    double AxisMaximum(platform::GraphAxis axis) const override;
    void SetAutoScale(platform::GraphAxis axis, bool on) override;
    void AutoScaleNow(platform::GraphAxis axis) override;
    void Redraw() override;

    // For checks and for printing: the curve, its samples and the grid as drawn.
    const SampleCurve& Curve() const { return *m_curve; }
    const SampleSeries& Samples() const;
    const QwtPlotGrid& GridItem() const { return *m_grid; }
    bool AutoScale(platform::GraphAxis axis) const { return m_axes[Index(axis)].autoScale; }
    std::string AxisCaption(platform::GraphAxis axis) const;

    static const QColor kBackground;
    static const QColor kAxisColour;
    static const QColor kLineColour;
    static const QColor kFillColour;

private:
    struct AxisState {
        double minimum = 0.0;
        double maximum = 10.0;
        bool autoScale = false;
    };
    static int Index(platform::GraphAxis axis) { return axis == platform::GraphAxis::XAxis ? 0 : 1; }
    static int QwtAxis(platform::GraphAxis axis);

    void ApplyPen();
    void ApplyScale(platform::GraphAxis axis);
    void FreezeScale(platform::GraphAxis axis);
    void SetAxisBound(platform::GraphAxis axis, double AxisState::*bound, double value);
    void ScheduleReplot();

    SampleCurve* m_curve; // owned by the plot
    QwtPlotGrid* m_grid; // owned by the plot
    std::array<AxisState, 2> m_axes {};
    int m_lineWidth = 3;
    int m_lineStyle = 1;
    int m_pointStyle = 0;
    bool m_fill = false;
    bool m_replotPending = false;
};

} // namespace ventrix::ui
