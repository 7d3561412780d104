#include "ui/DialKnob.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QVariantAnimation>

#include <qwt_dial_needle.h>
#include <qwt_round_scale_draw.h>
#include <qwt_scale_div.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace ventrix::ui {

namespace {

const char* const kNeedle = "Pointer-1";
const char* const kScaleMax = "Pointer-MAX";
const char* const kScaleMin = "Pointer-MIN";
const char* const kFillMax = "Pointer-FILLMAX";
const char* const kFillMin = "Pointer-FILLMIN";

// The core moves the needle every 200 ms; a slightly shorter glide keeps it in step.
constexpr int kGlideMs = 170;

const QColor kFace(28, 31, 36);
const QColor kScaleInk(226, 230, 236);
const QColor kNormalArc(150, 200, 230);
const QColor kOverloadArc(222, 58, 48);
const QColor kNeedleRed(235, 40, 32);
constexpr double kStaleOpacity = 0.3;

bool IsKnownPointer(const std::string& name)
{
    return name == kNeedle || name == kScaleMax || name == kScaleMin || name == kFillMax || name == kFillMin;
}

// A point on the dial for an angle of the round scale (0 at twelve o'clock, clockwise).
QPointF PolarPoint(const QPointF& center, double radius, double angleDegrees)
{
    const double radians = angleDegrees * M_PI / 180.0;
    return { center.x() + radius * std::sin(radians), center.y() - radius * std::cos(radians) };
}

// A band along the scale between two angles.
QPainterPath Band(const QPointF& center, double inner, double outer, double fromAngle, double toAngle)
{
    QPainterPath path;
    const int steps = std::max(2, static_cast<int>(std::fabs(toAngle - fromAngle) / 2.0));
    for (int i = 0; i <= steps; ++i) {
        const QPointF p = PolarPoint(center, outer, fromAngle + (toAngle - fromAngle) * i / steps);
        if (i == 0)
            path.moveTo(p);
        else
            path.lineTo(p);
    }
    for (int i = steps; i >= 0; --i)
        path.lineTo(PolarPoint(center, inner, fromAngle + (toAngle - fromAngle) * i / steps));
    path.closeSubpath();
    return path;
}

// A scale number as plain text: no group separators, no trailing zeros, "0" for minus zero.
QString TickText(double value)
{
    if (std::fabs(value) < 1e-12)
        return QStringLiteral("0");
    return QString::number(value, 'g', 6);
}

} // namespace

DialKnob::DialKnob(QWidget* parent)
    : QwtDial(parent)
{
    setObjectName("KNOB_ANALOG");
    setReadOnly(true);
    // The dial is hidden for readings it cannot show; keep its place so the panel does not jump.
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    setFocusPolicy(Qt::NoFocus);
    setWrapping(false);
    setMode(QwtDial::RotateNeedle);
    setOrigin(135.0);
    setScaleArc(0.0, 270.0);
    setScaleMaxMajor(8);
    setScaleMaxMinor(5);
    setLineWidth(4);
    setFrameShadow(QwtDial::Sunken);

    QPalette colours = palette();
    // The face is painted here; the dial's own fills stay transparent.
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::WindowText, Qt::transparent);
    colours.setColor(QPalette::Text, kScaleInk);
    colours.setColor(QPalette::Light, QColor(120, 124, 130)); // frame edges
    colours.setColor(QPalette::Dark, QColor(10, 11, 12));
    setPalette(colours);
    // The hub is drawn here rather than by the needle, whose own hub lands off centre on screens
    // with a device pixel ratio above 1.
    auto* needle = new QwtDialSimpleNeedle(QwtDialSimpleNeedle::Arrow, false, kNeedleRed, QColor(60, 62, 66));
    needle->setWidth(7);
    setNeedle(needle);

    m_glide = new QVariantAnimation(this);
    m_glide->setDuration(kGlideMs);
    m_glide->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_glide, &QVariantAnimation::valueChanged, this,
        [this](const QVariant& shown) { setValue(shown.toDouble()); });

    for (const char* name : { kNeedle, kScaleMax, kScaleMin, kFillMax, kFillMin })
        m_pointers[name] = 0.0;
    ApplyRange();
}

QSize DialKnob::sizeHint() const
{
    return QSize(200, 200);
}

void DialKnob::SetVisible(bool visible)
{
    setVisible(visible);
}
bool DialKnob::Visible() const
{
    return !isHidden();
}

double DialKnob::PointerValue(const std::string& pointer) const
{
    auto it = m_pointers.find(pointer);
    return it == m_pointers.end() ? 0.0 : it->second;
}

void DialKnob::SetPointerValue(const std::string& pointer, double value)
{
    if (!IsKnownPointer(pointer))
        return;
    m_pointers[pointer] = value;
    if (pointer == kNeedle) {
        GlideTo(value);
    } else if (pointer == kScaleMax || pointer == kScaleMin) {
        ShowScale();
        invalidateCache();
        update();
    }
}

void DialKnob::ShowScale()
{
    if (m_scaleShown)
        return;
    m_scaleShown = true;
    invalidateCache();
    update();
}

void DialKnob::SetStale(bool stale)
{
    if (stale == m_stale)
        return;
    m_stale = stale;
    invalidateCache();
    update();
}

double DialKnob::AxisMinimum() const
{
    return m_axisMinimum;
}
double DialKnob::AxisMaximum() const
{
    return m_axisMaximum;
}

void DialKnob::SetAxisMinimum(double value)
{
    m_axisMinimum = value;
    ShowScale();
    ApplyRange();
}

void DialKnob::SetAxisMaximum(double value)
{
    m_axisMaximum = value;
    ShowScale();
    ApplyRange();
}

void DialKnob::FinishGlide()
{
    m_glide->stop();
    setValue(m_pointers[kNeedle]);
}

void DialKnob::ApplyRange()
{
    // The two ends are written one at a time; a range that is momentarily empty or upside down
    // is left undrawn until the other end arrives.
    if (!(m_axisMinimum < m_axisMaximum))
        return;
    setScale(m_axisMinimum, m_axisMaximum);
    // The slider clamps its value to the old range; put the needle back where it belongs.
    m_glide->stop();
    setValue(m_pointers[kNeedle]);
    invalidateCache();
    update();
}

void DialKnob::GlideTo(double target)
{
    m_glide->stop();
    const double from = value();
    if (!isVisible() || from == target) {
        setValue(target);
        return;
    }
    m_glide->setStartValue(from);
    m_glide->setEndValue(target);
    m_glide->start();
}

void DialKnob::drawContents(QPainter* painter) const
{
    // A faint light from above on the dark face, under everything Qwt draws.
    const QRectF face = boundingRect();
    QRadialGradient glow(face.center() - QPointF(0, face.height() * 0.25), face.width() * 0.7);
    glow.setColorAt(0.0, QColor(60, 66, 74));
    glow.setColorAt(1.0, kFace);
    painter->save();
    painter->setPen(Qt::NoPen);
    painter->setBrush(glow);
    painter->drawEllipse(face);
    painter->restore();
    QwtDial::drawContents(painter);
}

void DialKnob::drawNeedle(QPainter* painter, const QPointF& center, double radius, double direction,
    QPalette::ColorGroup group) const
{
    // The needle stops short of the ticks so that it never hides the scale it points at. Before
    // the first reading there is nothing to point at: only the hub is drawn.
    if (m_scaleShown) {
        painter->save();
        if (m_stale)
            painter->setOpacity(kStaleOpacity);
        QwtDial::drawNeedle(painter, center, radius * 0.84, direction, group);
        painter->restore();
    }

    const double hub = std::max(4.0, radius * 0.075);
    QRadialGradient cap(center - QPointF(hub * 0.3, hub * 0.3), hub * 1.4);
    cap.setColorAt(0.0, QColor(120, 124, 130));
    cap.setColorAt(1.0, QColor(40, 42, 46));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(12, 13, 14), std::max(1.0, hub * 0.15)));
    painter->setBrush(cap);
    painter->drawEllipse(center, hub, hub);
    painter->restore();
}

QRect DialKnob::scaleInnerRect() const
{
    // Ticks run along the rim and the numbers sit inside them, so the scale can take nearly the
    // whole face.
    const QRect inner = innerRect();
    const int margin = std::max(2, inner.width() / 30);
    return inner.adjusted(margin, margin, -margin, -margin);
}

void DialKnob::drawScale(QPainter* painter, const QPointF& center, double radius) const
{
    if (!m_scaleShown)
        return;
    const QwtScaleMap map = scaleDraw()->scaleMap();
    const double low = std::min(m_axisMinimum, m_axisMaximum);
    const double high = std::max(m_axisMinimum, m_axisMaximum);
    const auto angle = [&](double v) { return map.transform(std::clamp(v, low, high)); };
    const double normalMin = PointerValue(kScaleMin);
    const double normalMax = PointerValue(kScaleMax);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_stale)
        painter->setOpacity(kStaleOpacity + 0.1);

    // Along the rim: the normal scale as a light band, the overload zones beyond it in red.
    painter->setPen(Qt::NoPen);
    if (normalMin < normalMax) {
        painter->setBrush(kNormalArc);
        painter->drawPath(Band(center, radius * 0.955, radius, angle(normalMin), angle(normalMax)));
        painter->setBrush(kOverloadArc);
        if (normalMax < high)
            painter->drawPath(Band(center, radius * 0.90, radius, angle(normalMax), angle(high)));
        if (normalMin > low)
            painter->drawPath(Band(center, radius * 0.90, radius, angle(low), angle(normalMin)));
    }

    // Ticks pointing inward from the rim.
    const QwtScaleDiv& div = scaleDraw()->scaleDiv();
    const double penWidth = std::max(1.0, radius / 70.0);
    const struct {
        QwtScaleDiv::TickType type;
        double inner;
        double width;
    } tickKinds[] = { { QwtScaleDiv::MinorTick, 0.93, 0.8 }, { QwtScaleDiv::MediumTick, 0.90, 1.0 },
        { QwtScaleDiv::MajorTick, 0.86, 1.6 } };
    for (const auto& kind : tickKinds) {
        painter->setPen(QPen(kScaleInk, penWidth * kind.width, Qt::SolidLine, Qt::FlatCap));
        for (double tick : div.ticks(kind.type)) {
            if (tick < low || tick > high)
                continue;
            const double a = map.transform(tick);
            painter->drawLine(
                PolarPoint(center, radius * 0.985, a), PolarPoint(center, radius * kind.inner, a));
        }
    }

    // The ends of the normal scale: long ticks in the band's colour.
    if (normalMin < normalMax) {
        painter->setPen(QPen(kNormalArc, penWidth * 2.2, Qt::SolidLine, Qt::FlatCap));
        for (double mark : { normalMin, normalMax })
            painter->drawLine(
                PolarPoint(center, radius, angle(mark)), PolarPoint(center, radius * 0.80, angle(mark)));
    }

    // Numbers inside the ticks, upright.
    QFont numbers = font();
    numbers.setBold(true);
    numbers.setPixelSize(std::max(7, static_cast<int>(radius * 0.13)));
    painter->setFont(numbers);
    painter->setPen(kScaleInk);
    const QFontMetricsF metrics(numbers);
    for (double tick : div.ticks(QwtScaleDiv::MajorTick)) {
        if (tick < low || tick > high)
            continue;
        const QString text = TickText(tick);
        const QPointF at = PolarPoint(center, radius * 0.63, map.transform(tick));
        const QSizeF size(metrics.horizontalAdvance(text), metrics.capHeight());
        painter->drawText(QPointF(at.x() - size.width() / 2, at.y() + size.height() / 2), text);
    }
    painter->restore();
}

} // namespace ventrix::ui
