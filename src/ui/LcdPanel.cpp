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

const std::array<Placement, 8> kPlacements { {
    { "AUTO_LBL", LcdLabel::Role::Annunciator, { 20, 14, 52, 19 } },
    { "HOLD_LBL", LcdLabel::Role::Annunciator, { 78, 14, 52, 19 } },
    { "BATTERY_LBL", LcdLabel::Role::Battery, { 140, 14, 66, 19 } },
    { "FUNCTION_LBL", LcdLabel::Role::Annunciator, { 286, 14, 64, 19 } },
    { "MIN_LBL", LcdLabel::Role::Annunciator, { 356, 14, 46, 19 } },
    { "NEG_LBL", LcdLabel::Role::Minus, { 16, 38, 38, 98 } },
    { "DIGIT_LBL", LcdLabel::Role::Digits, { 56, 38, 272, 98 } },
    { "MODE_LBL", LcdLabel::Role::Unit, { 332, 98, 74, 32 } },
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

void LcdPanel::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    PlaceLabels();
}

void LcdPanel::PlaceLabels()
{
    const double sx = width() / kGridWidth;
    const double sy = height() / kGridHeight;
    for (const Placement& placement : kPlacements) {
        auto* label = findChild<QLabel*>(QString::fromLatin1(placement.name));
        if (label == nullptr)
            continue;
        const QRectF r = placement.rect;
        label->setGeometry(QRectF(r.x() * sx, r.y() * sy, r.width() * sx, r.height() * sy).toRect());
    }
}

void LcdPanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outer = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const double scale = std::min(width() / kGridWidth, height() / kGridHeight);

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
    QLinearGradient glassFill(glass.topLeft(), glass.bottomLeft());
    glassFill.setColorAt(0.0, QColor(200, 209, 186));
    glassFill.setColorAt(0.55, QColor(184, 195, 170));
    glassFill.setColorAt(1.0, QColor(168, 180, 155));
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
