#include "ui/QwtPrintSurface.h"

#include "ui/SampleCurve.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QPicture>
#include <qwt_plot.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

namespace ventrix::ui {

using platform::GraphAxis;

namespace {
constexpr const char* kCurveTitle = "Plot-1";
constexpr std::uint32_t kScreenFill = 0xFF0000;

int QwtAxisOf(GraphAxis axis)
{
    return axis == GraphAxis::XAxis ? QwtPlot::xBottom : QwtPlot::yLeft;
}
} // namespace

QwtPrintSurface::QwtPrintSurface(QwtPlot& plot, QLabel& picture)
    : m_plot(plot)
    , m_picture(picture)
{
    const QBrush brush = CurveBrush();
    m_fillColour = brush.style() != Qt::NoBrush ? brush.color() : ToColor(kScreenFill);
}

QColor QwtPrintSurface::ToColor(std::uint32_t colour)
{
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
        static_cast<int>((colour >> 16) & 0xFF));
}

void QwtPrintSurface::SetBackColours(std::uint32_t colour)
{
    const QColor color = ToColor(colour);
    m_plot.setCanvasBackground(color);
    QPalette palette = m_plot.palette();
    palette.setColor(QPalette::Window, color);
    m_plot.setPalette(palette);
}

void QwtPrintSurface::SetAxisColours(GraphAxis axis, std::uint32_t colour)
{
    const QColor color = ToColor(colour);
    const int qwtAxis = QwtAxisOf(axis);
    QwtScaleWidget* scale = m_plot.axisWidget(qwtAxis);
    QPalette palette = scale->palette();
    palette.setColor(QPalette::WindowText, color); // backbone, major and minor ticks
    palette.setColor(QPalette::Text, color); // labels
    scale->setPalette(palette);
    QwtText title = m_plot.axisTitle(qwtAxis);
    title.setColor(color);
    m_plot.setAxisTitle(qwtAxis, title);
}

void QwtPrintSurface::SetPlotFillToBase(bool on)
{
    SetCurveBrush(on ? QBrush(m_fillColour) : QBrush(Qt::NoBrush));
}

void QwtPrintSurface::SetPlotLineColour(std::uint32_t colour)
{
    QPen pen = CurvePen();
    pen.setColor(ToColor(colour));
    SetCurvePen(pen);
}

void QwtPrintSurface::SetPlotFillColour(std::uint32_t colour)
{
    m_fillColour = ToColor(colour);
    if (CurveBrush().style() != Qt::NoBrush)
        SetCurveBrush(QBrush(m_fillColour));
}

void QwtPrintSurface::SetLabelFormat(GraphAxis axis, const std::string& format)
{
    const int qwtAxis = QwtAxisOf(axis);
    QwtScaleWidget* scale = m_plot.axisWidget(qwtAxis);
    QwtScaleDraw* draw = scale->scaleDraw();
    std::optional<double>& screenSpacing = m_screenSpacing[axis == GraphAxis::XAxis ? 0 : 1];
    if (!screenSpacing)
        screenSpacing = draw->spacing();

    const std::size_t lastShown = format.find_last_not_of(' ');
    const bool blank = !format.empty() && lastShown == std::string::npos;
    const std::size_t trailing = lastShown == std::string::npos ? 0 : format.size() - 1 - lastShown;
    draw->enableComponent(QwtAbstractScaleDraw::Labels, !blank);
    draw->setSpacing(
        *screenSpacing + QFontMetricsF(scale->font()).horizontalAdvance(QLatin1Char(' ')) * trailing);
    scale->update();
    m_plot.updateAxes();
    m_plot.updateLayout();
}

void QwtPrintSurface::CaptureToPicture()
{
    QSize size = m_plot.size();
    if (!m_plot.isVisible() || size.isEmpty())
        size = QSize(kDefaultWidth, kDefaultHeight);
    QPicture picture;
    QPainter painter(&picture);
    QwtPlotRenderer renderer;
    renderer.render(&m_plot, &painter, QRectF(QPointF(0.0, 0.0), QSizeF(size)));
    painter.end();
    picture.setBoundingRect(QRect(QPoint(0, 0), size));
    m_picture.setPicture(picture);
}

SampleCurve* QwtPrintSurface::Curve() const
{
    for (QwtPlotItem* item : m_plot.itemList()) {
        if (item->title().text() == QLatin1String(kCurveTitle))
            return dynamic_cast<SampleCurve*>(item);
    }
    return nullptr;
}

QPen QwtPrintSurface::CurvePen() const
{
    const SampleCurve* curve = Curve();
    return curve != nullptr ? curve->Pen() : QPen();
}

void QwtPrintSurface::SetCurvePen(const QPen& pen)
{
    if (SampleCurve* curve = Curve()) {
        curve->SetPen(pen);
        curve->itemChanged();
    }
}

QBrush QwtPrintSurface::CurveBrush() const
{
    const SampleCurve* curve = Curve();
    return curve != nullptr ? curve->Brush() : QBrush();
}

void QwtPrintSurface::SetCurveBrush(const QBrush& brush)
{
    if (SampleCurve* curve = Curve()) {
        curve->SetBrush(brush);
        curve->itemChanged();
    }
}

} // namespace ventrix::ui
