#include "ui/QwtGraphAdapter.h"

#include "ui/SampleCurve.h"

#include <QPen>
#include <QTimer>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_div.h>
#include <qwt_scale_widget.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

namespace ventrix::ui {

using platform::GraphAxis;

const QColor QwtGraphAdapter::kBackground { 0, 0, 0 };
const QColor QwtGraphAdapter::kAxisColour { 255, 255, 0 };
const QColor QwtGraphAdapter::kLineColour { 0, 255, 0 };
const QColor QwtGraphAdapter::kFillColour { 0, 0, 255 };

namespace {
constexpr int kSymbolSize = 7;

struct LineStyleCode {
    int code;
    SampleCurve::Shape shape;
    Qt::PenStyle pen;
};
constexpr LineStyleCode kLineStyles[] = {
    { 1, SampleCurve::Shape::Lines, Qt::SolidLine },
    { 2, SampleCurve::Shape::Steps, Qt::SolidLine },
    { 4, SampleCurve::Shape::Lines, Qt::DashLine },
    { 5, SampleCurve::Shape::Lines, Qt::DotLine },
    { 6, SampleCurve::Shape::Lines, Qt::DashDotLine },
};

struct PointStyleCode {
    int code;
    QwtSymbol::Style symbol;
    bool solid;
};
constexpr PointStyleCode kPointStyles[] = {
    { 0, QwtSymbol::NoSymbol, false },
    { 1, QwtSymbol::Rect, false },
    { 2, QwtSymbol::Rect, true },
    { 22, QwtSymbol::Diamond, false },
    { 6, QwtSymbol::Diamond, true },
    { 3, QwtSymbol::Star1, false },
    { 16, QwtSymbol::XCross, false },
};

template <typename Table> auto FindCode(const Table& table, int code) -> decltype(&table[0])
{
    for (const auto& entry : table) {
        if (entry.code == code)
            return &entry;
    }
    return nullptr;
}
} // namespace

QwtGraphAdapter::QwtGraphAdapter(QWidget* parent)
    : QwtPlot(parent)
    , m_curve(new SampleCurve(QStringLiteral("Plot-1")))
    , m_grid(new QwtPlotGrid)
{
    setObjectName(QStringLiteral("GRAPH_CWGraph"));
    setAutoReplot(false);

    QPalette background = palette();
    background.setColor(QPalette::Window, kBackground);
    setPalette(background);
    setAutoFillBackground(true);
    setCanvasBackground(kBackground);
    if (auto* frame = qobject_cast<QwtPlotCanvas*>(canvas()))
        frame->setFrameStyle(QFrame::NoFrame);

    enableAxis(QwtPlot::yRight, false);
    enableAxis(QwtPlot::xTop, false);
    axisWidget(QwtPlot::xBottom)->setObjectName(QStringLiteral("XAxis"));
    axisWidget(QwtPlot::yLeft)->setObjectName(QStringLiteral("YAxis-1"));
    for (int axis : { QwtPlot::xBottom, QwtPlot::yLeft }) {
        QwtScaleWidget* scale = axisWidget(axis);
        QPalette colours = scale->palette();
        colours.setColor(QPalette::WindowText, kAxisColour); // backbone and ticks
        colours.setColor(QPalette::Text, kAxisColour); // tick labels
        scale->setPalette(colours);
    }

    m_grid->setMajorPen(QColor(90, 90, 90), 0, Qt::DotLine);
    m_grid->enableXMin(false);
    m_grid->enableYMin(false);
    m_grid->enableX(true);
    m_grid->enableY(true);
    m_grid->attach(this);

    m_curve->SetBaseline(0.0);
    m_curve->attach(this);
    ApplyPen();
    ApplyScale(GraphAxis::XAxis);
    ApplyScale(GraphAxis::YAxis1);
}

const SampleSeries& QwtGraphAdapter::Samples() const
{
    return m_curve->Series();
}

int QwtGraphAdapter::QwtAxis(GraphAxis axis)
{
    return axis == GraphAxis::XAxis ? QwtPlot::xBottom : QwtPlot::yLeft;
}

void QwtGraphAdapter::SetLineWidth(int width)
{
    if (width < 0)
        return;
    m_lineWidth = width;
    ApplyPen();
}

void QwtGraphAdapter::SetLineStyle(int code)
{
    if (FindCode(kLineStyles, code) == nullptr)
        return;
    m_lineStyle = code;
    ApplyPen();
}

void QwtGraphAdapter::SetPointStyle(int code)
{
    if (FindCode(kPointStyles, code) == nullptr)
        return;
    m_pointStyle = code;
    ApplyPen();
}

void QwtGraphAdapter::SetFillToBase(bool on)
{
    m_fill = on;
    ApplyPen();
}

void QwtGraphAdapter::SetMajorGrid(GraphAxis axis, bool on)
{
    // The grid lines of an axis run across the plot at that axis's ticks.
    if (axis == GraphAxis::XAxis)
        m_grid->enableX(on);
    else
        m_grid->enableY(on);
    ScheduleReplot();
}

bool QwtGraphAdapter::MajorGrid(GraphAxis axis) const
{
    return axis == GraphAxis::XAxis ? m_grid->xEnabled() : m_grid->yEnabled();
}

void QwtGraphAdapter::ApplyPen()
{
    const LineStyleCode* line = FindCode(kLineStyles, m_lineStyle);
    QPen pen(kLineColour, m_lineWidth, line->pen, Qt::FlatCap, Qt::MiterJoin);
    pen.setCosmetic(true); // width in screen pixels; width 0 is the thinnest line
    m_curve->SetPen(pen);
    m_curve->SetShape(line->shape);
    m_curve->SetBrush(m_fill ? QBrush(kFillColour) : QBrush(Qt::NoBrush));

    const PointStyleCode* point = FindCode(kPointStyles, m_pointStyle);
    if (point->symbol == QwtSymbol::NoSymbol) {
        m_curve->SetSymbol(nullptr);
    } else {
        const QBrush fill = point->solid ? QBrush(kLineColour) : QBrush(Qt::NoBrush);
        m_curve->SetSymbol(std::make_unique<QwtSymbol>(
            point->symbol, fill, QPen(kLineColour, 1), QSize(kSymbolSize, kSymbolSize)));
    }
    m_curve->itemChanged();
    ScheduleReplot();
}

void QwtGraphAdapter::ClearData()
{
    m_curve->Series().Clear();
    m_curve->itemChanged();
    ScheduleReplot();
}

void QwtGraphAdapter::AppendPoint(double value)
{
    m_curve->Series().Append(value);
    m_curve->itemChanged();
    ScheduleReplot();
}

void QwtGraphAdapter::SetAxisCaption(GraphAxis axis, const std::string& caption)
{
    QwtText title(QString::fromStdString(caption));
    title.setColor(kAxisColour);
    setAxisTitle(QwtAxis(axis), title);
    ScheduleReplot();
}

std::string QwtGraphAdapter::AxisCaption(GraphAxis axis) const
{
    return axisTitle(QwtAxis(axis)).text().toStdString();
}

void QwtGraphAdapter::SetAxisMinimum(GraphAxis axis, double value)
{
    SetAxisBound(axis, &AxisState::minimum, value);
}

void QwtGraphAdapter::SetAxisMaximum(GraphAxis axis, double value)
{
    SetAxisBound(axis, &AxisState::maximum, value);
}

void QwtGraphAdapter::SetAxisBound(GraphAxis axis, double AxisState::*bound, double value)
{
    // An explicit end takes the axis out of automatic scaling, keeping the other end where the
    // automatic scale had put it.
    AxisState& state = m_axes[Index(axis)];
    if (state.autoScale)
        FreezeScale(axis);
    state.*bound = value;
    ApplyScale(axis);
}

double QwtGraphAdapter::AxisMinimum(GraphAxis axis) const
{
    const AxisState& state = m_axes[Index(axis)];
    if (!state.autoScale)
        return state.minimum;
    const_cast<QwtGraphAdapter*>(this)->updateAxes();
    return axisScaleDiv(QwtAxis(axis)).lowerBound();
}

double QwtGraphAdapter::AxisMaximum(GraphAxis axis) const
{
    const AxisState& state = m_axes[Index(axis)];
    if (!state.autoScale)
        return state.maximum;
    const_cast<QwtGraphAdapter*>(this)->updateAxes();
    return axisScaleDiv(QwtAxis(axis)).upperBound();
}

void QwtGraphAdapter::SetAutoScale(GraphAxis axis, bool on)
{
    AxisState& state = m_axes[Index(axis)];
    if (state.autoScale == on)
        return;
    if (on) {
        state.autoScale = true;
        setAxisAutoScale(QwtAxis(axis), true);
        ScheduleReplot();
    } else {
        // Leaving automatic scaling keeps the range it last chose.
        FreezeScale(axis);
        ApplyScale(axis);
    }
}

void QwtGraphAdapter::AutoScaleNow(GraphAxis axis)
{
    // Scale once to the data, then hold that range.
    setAxisAutoScale(QwtAxis(axis), true);
    m_axes[Index(axis)].autoScale = true;
    FreezeScale(axis);
    ApplyScale(axis);
}

void QwtGraphAdapter::FreezeScale(GraphAxis axis)
{
    AxisState& state = m_axes[Index(axis)];
    updateAxes();
    const QwtScaleDiv& current = axisScaleDiv(QwtAxis(axis));
    state.minimum = current.lowerBound();
    state.maximum = current.upperBound();
    state.autoScale = false;
}

void QwtGraphAdapter::ApplyScale(GraphAxis axis)
{
    const AxisState& state = m_axes[Index(axis)];
    setAxisScale(QwtAxis(axis), state.minimum, state.maximum);
    ScheduleReplot();
}

void QwtGraphAdapter::Redraw()
{
    m_replotPending = false;
    replot();
}

void QwtGraphAdapter::ScheduleReplot()
{
    if (m_replotPending)
        return;
    m_replotPending = true;
    QTimer::singleShot(0, this, [this] {
        if (m_replotPending)
            Redraw();
    });
}

} // namespace ventrix::ui
