#include "ui/LcdPanel.h"

#include "ui/LcdLabel.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <array>

namespace ventrix::ui {

namespace {

// The panel is laid out on a 420 x 150 grid and scaled to its real size.
constexpr double kGridWidth = 420.0;
constexpr double kGridHeight = 150.0;
constexpr double kBezel = 9.0;

struct Placement {
    const char* name;
    LcdLabel::Role role;
    QRectF rect; // on the 420 x 150 layout grid
};

// Legend heights on the grid: one for every annunciator word, one for the unit.
constexpr double kAnnunciatorPixels = 14.0;
constexpr double kUnitPixels = 25.0;

const std::array<Placement, 8> kPlacements { {
    { "AUTO_LBL", LcdLabel::Role::Annunciator, { 20, 13, 50, 20 } },
    { "HOLD_LBL", LcdLabel::Role::Annunciator, { 74, 13, 50, 20 } },
    { "BATTERY_LBL", LcdLabel::Role::Battery, { 134, 13, 70, 20 } },
    { "FUNCTION_LBL", LcdLabel::Role::Annunciator, { 282, 13, 64, 20 } },
    { "MIN_LBL", LcdLabel::Role::Annunciator, { 350, 13, 50, 20 } },
    { "NEG_LBL", LcdLabel::Role::Minus, { 16, 38, 38, 98 } },
    { "DIGIT_LBL", LcdLabel::Role::Digits, { 54, 38, 270, 98 } },
    { "MODE_LBL", LcdLabel::Role::Unit, { 328, 38, 74, 96 } },
} };

} // namespace

LcdPanel::LcdPanel(QWidget* parent)
    : QFrame(parent)
{
    setObjectName("DIGIT_FRAME");
    setFrameShape(QFrame::NoFrame);
    LcdLabel::LoadSegmentFonts();
    for (const Placement& placement : kPlacements)
        new LcdLabel(placement.role, placement.name, this);
    // NEG_LBL only switches visibility; give it the sign as text so it also reads right as text.
    findChild<QLabel*>(QStringLiteral("NEG_LBL"))->setText(QStringLiteral("-"));
    setMinimumSize(minimumSizeHint());
    PlaceLabels();
}

QSize LcdPanel::sizeHint() const
{
    return QSize(static_cast<int>(kGridWidth), static_cast<int>(kGridHeight));
}
QSize LcdPanel::minimumSizeHint() const
{
    return QSize(210, 75);
}

QRectF LcdPanel::LcdRect() const
{
    // The largest rectangle of the LCD's proportions that fits, centred.
    double w = width();
    double h = w / kAspect;
    if (h > height()) {
        h = height();
        w = h * kAspect;
    }
    return QRectF((width() - w) / 2.0, (height() - h) / 2.0, w, h);
}

void LcdPanel::SetStale(bool stale)
{
    if (stale == m_stale)
        return;
    m_stale = stale;
    for (LcdLabel* label : findChildren<LcdLabel*>(QString(), Qt::FindDirectChildrenOnly))
        label->SetFaded(stale);
    update();
}

void LcdPanel::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    PlaceLabels();
}

void LcdPanel::PlaceLabels()
{
    const QRectF lcd = LcdRect();
    const double scale = lcd.width() / kGridWidth;
    for (const Placement& placement : kPlacements) {
        auto* label = findChild<LcdLabel*>(QString::fromLatin1(placement.name));
        if (label == nullptr)
            continue;
        const QRectF r = placement.rect;
        label->setGeometry(
            QRectF(lcd.x() + r.x() * scale, lcd.y() + r.y() * scale, r.width() * scale, r.height() * scale)
                .toRect());
        label->SetLegendPixels(
            (placement.role == LcdLabel::Role::Unit ? kUnitPixels : kAnnunciatorPixels) * scale);
    }
}

void LcdPanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outer = LcdRect().adjusted(0.5, 0.5, -0.5, -0.5);
    const double scale = outer.width() / kGridWidth;

    // Bezel: dark moulded plastic with a faint highlight along its top edge.
    QLinearGradient bezel(outer.topLeft(), outer.bottomLeft());
    bezel.setColorAt(0.0, QColor(74, 78, 82));
    bezel.setColorAt(0.5, QColor(46, 49, 52));
    bezel.setColorAt(1.0, QColor(32, 34, 36));
    painter.setPen(QPen(QColor(20, 21, 22), 1.0));
    painter.setBrush(bezel);
    painter.drawRoundedRect(outer, 10 * scale, 10 * scale);

    // Glass: greenish grey, a little lighter at the top where the light falls on it.
    const double inset = kBezel * scale;
    const QRectF glass = outer.adjusted(inset, inset, -inset, -inset);
    // Unlit (stale reading): a greyer, darker glass, as a meter's display looks without its light.
    QLinearGradient glassFill(glass.topLeft(), glass.bottomLeft());
    if (m_stale) {
        glassFill.setColorAt(0.0, QColor(146, 152, 140));
        glassFill.setColorAt(0.55, QColor(134, 140, 129));
        glassFill.setColorAt(1.0, QColor(122, 128, 118));
    } else {
        glassFill.setColorAt(0.0, QColor(200, 209, 186));
        glassFill.setColorAt(0.55, QColor(184, 195, 170));
        glassFill.setColorAt(1.0, QColor(168, 180, 155));
    }
    painter.setPen(QPen(QColor(18, 20, 18), std::max(1.0, 1.2 * scale)));
    painter.setBrush(glassFill);
    painter.drawRoundedRect(glass, 4 * scale, 4 * scale);

    // Inner shadow under the bezel's top and left edges.
    QLinearGradient topShade(glass.topLeft(), glass.topLeft() + QPointF(0, 10 * scale));
    topShade.setColorAt(0.0, QColor(0, 0, 0, 60));
    topShade.setColorAt(1.0, QColor(0, 0, 0, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(topShade);
    painter.drawRoundedRect(glass, 4 * scale, 4 * scale);
    QLinearGradient leftShade(glass.topLeft(), glass.topLeft() + QPointF(8 * scale, 0));
    leftShade.setColorAt(0.0, QColor(0, 0, 0, 40));
    leftShade.setColorAt(1.0, QColor(0, 0, 0, 0));
    painter.setBrush(leftShade);
    painter.drawRoundedRect(glass, 4 * scale, 4 * scale);

    // A broad, soft reflection across the upper part of the glass.
    QPainterPath sheen;
    sheen.moveTo(glass.left(), glass.top());
    sheen.lineTo(glass.left() + glass.width() * 0.55, glass.top());
    sheen.lineTo(glass.left() + glass.width() * 0.35, glass.bottom());
    sheen.lineTo(glass.left(), glass.bottom());
    sheen.closeSubpath();
    QLinearGradient sheenFill(glass.topLeft(), glass.bottomRight());
    sheenFill.setColorAt(0.0, QColor(255, 255, 255, 34));
    sheenFill.setColorAt(1.0, QColor(255, 255, 255, 0));
    painter.setBrush(sheenFill);
    QPainterPath glassPath;
    glassPath.addRoundedRect(glass, 4 * scale, 4 * scale);
    painter.drawPath(sheen.intersected(glassPath));
}

} // namespace ventrix::ui
