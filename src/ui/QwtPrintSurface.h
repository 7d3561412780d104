#pragma once

#include "platform/GraphPrintSurface.h"

#include <QBrush>
#include <QColor>
#include <QPen>

#include <array>
#include <optional>

class QLabel;
class QwtPlot;

namespace ventrix::ui {

class SampleCurve;

// The print-time side of the graph on its QwtPlot: background (plot area and frame), axis
// (backbone, ticks, labels and title) and curve colours of "Plot-1", its fill to base, and the
// label formats as far as printing uses them: a format of blanks only hides the axis's labels,
// blanks after a format widen the gap between labels and ticks by as many blanks, anything else
// shows the labels as the screen draws them. CaptureToPicture() renders the plot through
// QwtPlotRenderer into a vector QPicture, at the size the graph has on the screen, held by the
// hidden picture box picPRINT (a QLabel). It does not replot the screen graph.
class QwtPrintSurface : public platform::GraphPrintSurface {
public:
    QwtPrintSurface(QwtPlot& plot, QLabel& picture);

    void SetBackColours(std::uint32_t colour) override;
    void SetAxisColours(platform::GraphAxis axis, std::uint32_t colour) override;
    void SetPlotFillToBase(bool on) override;
    void SetPlotLineColour(std::uint32_t colour) override;
    void SetPlotFillColour(std::uint32_t colour) override;
    void SetLabelFormat(platform::GraphAxis axis, const std::string& format) override;
    void CaptureToPicture() override;

    // 0x00BBGGRR as a colour.
    static QColor ToColor(std::uint32_t colour);
    // The size captured when the graph has not been laid out on the screen.
    static constexpr int kDefaultWidth = 800;
    static constexpr int kDefaultHeight = 450;

private:
    SampleCurve* Curve() const;
    QPen CurvePen() const;
    void SetCurvePen(const QPen& pen);
    QBrush CurveBrush() const;
    void SetCurveBrush(const QBrush& brush);

    QwtPlot& m_plot;
    QLabel& m_picture;
    QColor m_fillColour;
    std::array<std::optional<double>, 2> m_screenSpacing; // label gap of each axis as first seen
};

} // namespace ventrix::ui
