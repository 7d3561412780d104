#include "ui/QwtGraphAdapter.h"

#include "platform/GraphRules.h"
#include "ui/AmplitudeScaleDraw.h"
#include "ui/GraphMouse.h"
#include "ui/GraphOverlay.h"
#include "ui/SampleCurve.h"
#include "ui/SampleScaleDraw.h"

#include <QPen>
#include <QTimer>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

#include <cmath>

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
    , m_overlay(nullptr)
    , m_mouse(nullptr)
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
    setAxisScaleDraw(QwtPlot::xBottom, new SampleScaleDraw);
    setAxisScaleDraw(QwtPlot::yLeft, new AmplitudeScaleDraw);
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

    m_overlay = new GraphOverlay(canvas());
    m_mouse = new GraphMouse(*this);
    canvas()->installEventFilter(m_mouse);
    for (int axis : { QwtPlot::xBottom, QwtPlot::yLeft })
        axisWidget(axis)->installEventFilter(m_mouse);
}

QwtGraphAdapter::~QwtGraphAdapter() = default;

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
    for (GraphAxis axis : { GraphAxis::XAxis, GraphAxis::YAxis1 })
        if (m_axes[Index(axis)].autoScale)
            Fit(axis);
    UpdateOverlay();
    ScheduleReplot();
}

void QwtGraphAdapter::AppendPoint(double value)
{
    SampleSeries& series = m_curve->Series();
    series.Append(value);
    AxisState& x = m_axes[Index(GraphAxis::XAxis)];
    if (x.autoScale) {
        Fit(GraphAxis::XAxis);
    } else {
        const platform::AxisRange view
            = platform::FollowAppendedSample({ x.minimum, x.maximum }, series.Count() - 1);
        if (view.minimum != x.minimum || view.maximum != x.maximum) {
            x.minimum = view.minimum;
            x.maximum = view.maximum;
            ApplyScale(GraphAxis::XAxis);
        }
    }
    if (m_axes[Index(GraphAxis::YAxis1)].autoScale)
        Fit(GraphAxis::YAxis1);
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
    AxisState& state = m_axes[Index(axis)];
    SetView(axis, value, state.maximum);
}

void QwtGraphAdapter::SetAxisMaximum(GraphAxis axis, double value)
{
    AxisState& state = m_axes[Index(axis)];
    SetView(axis, state.minimum, value);
}

void QwtGraphAdapter::SetView(GraphAxis axis, double minimum, double maximum)
{
    // An explicit range takes the axis out of automatic scaling.
    AxisState& state = m_axes[Index(axis)];
    state.autoScale = false;
    state.minimum = minimum;
    state.maximum = maximum;
    ApplyScale(axis);
}

void QwtGraphAdapter::SetAutoScale(GraphAxis axis, bool on)
{
    m_axes[Index(axis)].autoScale = on;
    if (on)
        Fit(axis);
}

void QwtGraphAdapter::AutoScaleNow(GraphAxis axis)
{
    Fit(axis);
}

void QwtGraphAdapter::Fit(GraphAxis axis)
{
    AxisState& state = m_axes[Index(axis)];
    const SampleSeries& series = m_curve->Series();
    const platform::AxisRange range = axis == GraphAxis::XAxis
        ? platform::FitSampleAxis(series.Count())
        : platform::FitAmplitudeAxis(
            series.Count(), series.Minimum(), series.Maximum(), { state.minimum, state.maximum });
    state.minimum = range.minimum;
    state.maximum = range.maximum;
    ApplyScale(axis);
}

void QwtGraphAdapter::ApplyScale(GraphAxis axis)
{
    const AxisState& state = m_axes[Index(axis)];
    double step = 0.0; // Qwt's choice
    if (axis == GraphAxis::XAxis) {
        // Ticks on whole sample numbers only.
        step = QwtScaleArithmetic::divideInterval(
            std::abs(state.maximum - state.minimum), axisMaxMajor(QwtPlot::xBottom), 10);
        step = std::max(1.0, std::round(step));
    }
    setAxisScale(QwtAxis(axis), state.minimum, state.maximum, step);
    ScheduleReplot();
}

void QwtGraphAdapter::Redraw()
{
    m_replotPending = false;
    replot();
    UpdateOverlay();
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

void QwtGraphAdapter::resizeEvent(QResizeEvent* event)
{
    QwtPlot::resizeEvent(event);
    ScheduleReplot();
}

void QwtGraphAdapter::SetTrackingMode(int mode)
{
    if (mode == 2 || mode == 3 || mode == 6)
        m_trackingMode = mode;
}

void QwtGraphAdapter::SetCursorX(int cursor, double x)
{
    m_cursors.SetX(cursor, x, Samples().Count());
    UpdateOverlay();
}

double QwtGraphAdapter::CursorX(int cursor) const
{
    return m_cursors.X(cursor, Samples().Count());
}

double QwtGraphAdapter::CursorY(int cursor) const
{
    return m_cursors.Y(
        cursor, Samples().Count(), [this](std::size_t sample) { return Samples().Value(sample); });
}

void QwtGraphAdapter::SetCursorMode(int cursor, int mode)
{
    m_cursors.SetMode(cursor, mode);
    UpdateOverlay();
}

void QwtGraphAdapter::SetCursorVisible(int cursor, bool visible)
{
    m_cursors.SetVisible(cursor, visible);
    UpdateOverlay();
}

int QwtGraphAdapter::NearestCursor(double column) const
{
    const QwtScaleMap xMap = canvasMap(QwtPlot::xBottom);
    int nearest = 0;
    double distance = 0.0;
    for (int cursor : { 1, 2 }) {
        if (!CursorVisible(cursor))
            continue;
        const double d = std::abs(xMap.transform(CursorX(cursor)) - column);
        if (nearest == 0 || d < distance) {
            nearest = cursor;
            distance = d;
        }
    }
    return nearest;
}

void QwtGraphAdapter::DragCursor(int cursor, const QPointF& canvasPoint)
{
    if (!CursorVisible(cursor))
        return;
    const double before = CursorX(cursor);
    SetCursorX(cursor, canvasMap(QwtPlot::xBottom).invTransform(canvasPoint.x()));
    m_cursors.SetFreeY(cursor, canvasMap(QwtPlot::yLeft).invTransform(canvasPoint.y()));
    if (CursorMode(cursor) == platform::CursorPair::kOnSamples && CursorX(cursor) == before)
        return; // still on the same sample
    if (m_onCursorChange)
        m_onCursorChange(cursor, CursorX(cursor), CursorY(cursor));
}

void QwtGraphAdapter::UpdateOverlay()
{
    if (m_overlay == nullptr)
        return;
    const QwtScaleMap xMap = canvasMap(QwtPlot::xBottom);
    const QwtScaleMap yMap = canvasMap(QwtPlot::yLeft);
    for (int cursor : { 1, 2 })
        m_overlay->SetCursor(
            cursor, CursorVisible(cursor), xMap.transform(CursorX(cursor)), yMap.transform(CursorY(cursor)));
}

} // namespace ventrix::ui
