#include "ui/GraphOverlay.h"

#include <QPainter>

#include <cmath>

namespace ventrix::ui {

namespace {
constexpr int kBox = 9; // side of the box on the cursor's sample
constexpr int kLabelWidth = 14;
constexpr int kLabelHeight = 16;
} // namespace

const std::array<QColor, 2> GraphOverlay::kCursorColours { QColor(255, 80, 255), QColor(0, 255, 255) };

GraphOverlay::GraphOverlay(QWidget* canvas)
    : QwtWidgetOverlay(canvas)
{
    setObjectName(QStringLiteral("GraphOverlay"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setMaskMode(QwtWidgetOverlay::MaskHint);
}

void GraphOverlay::SetCursor(int cursor, bool visible, double x, double y)
{
    if (cursor != 1 && cursor != 2)
        return;
    m_marks[static_cast<std::size_t>(cursor - 1)] = { visible, x, y };
    updateOverlay();
}

void GraphOverlay::SetBand(const QRect& band)
{
    m_band = band.normalized();
    updateOverlay();
}

QRect GraphOverlay::MarkRect(const Mark& mark) const
{
    const int x = static_cast<int>(std::floor(mark.x));
    const int reach = kBox / 2 + 4 + kLabelWidth; // the box or the number on either side
    return QRect(x - reach, 0, 2 * reach + 1, height());
}

void GraphOverlay::drawOverlay(QPainter* painter) const
{
    QFont font = painter->font();
    font.setBold(true);
    painter->setFont(font);
    for (std::size_t i = 0; i < m_marks.size(); ++i) {
        const Mark& mark = m_marks[i];
        if (!mark.visible || mark.x < 0.0 || mark.x > width())
            continue;
        const int x = static_cast<int>(std::floor(mark.x));
        painter->setPen(QPen(kCursorColours[i], 1));
        painter->setBrush(Qt::NoBrush);
        painter->drawLine(x, 0, x, height());
        if (mark.y >= 0.0 && mark.y <= height()) {
            const int y = static_cast<int>(std::floor(mark.y));
            painter->drawRect(x - kBox / 2, y - kBox / 2, kBox - 1, kBox - 1);
        }
        // The number beside the line: cursor 1 to its left, cursor 2 to its right, so that
        // both read when they stand together; turned inward at the canvas edges.
        bool leftOfLine = i == 0;
        if (x - 3 - kLabelWidth < 0)
            leftOfLine = false;
        else if (x + 3 + kLabelWidth > width())
            leftOfLine = true;
        const QRect label = leftOfLine ? QRect(x - 3 - kLabelWidth, 1, kLabelWidth, kLabelHeight)
                                       : QRect(x + 3, 1, kLabelWidth, kLabelHeight);
        painter->drawText(label, (leftOfLine ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop,
            QString::number(static_cast<int>(i) + 1));
    }
    if (!m_band.isEmpty()) {
        painter->setPen(QPen(Qt::white, 1, Qt::DashLine));
        painter->setBrush(QColor(255, 255, 255, 40));
        painter->drawRect(m_band.adjusted(0, 0, -1, -1));
    }
}

QRegion GraphOverlay::maskHint() const
{
    QRegion region;
    for (const Mark& mark : m_marks)
        if (mark.visible)
            region += MarkRect(mark);
    if (!m_band.isEmpty())
        region += m_band.adjusted(-1, -1, 1, 1);
    return region;
}

} // namespace ventrix::ui
