#include "ui/ToolIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <functional>

namespace ventrix::ui {

namespace {
constexpr int kSize = 48; // drawn large, shown at 24 px and sharp on high-density screens

QIcon Draw(const std::function<void(QPainter&)>& paint)
{
    QPixmap pixmap(kSize, kSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();
    return QIcon(pixmap);
}
} // namespace

QIcon ToolIcons::Play()
{
    return Draw([](QPainter& p) {
        QPainterPath triangle;
        triangle.moveTo(12, 7);
        triangle.lineTo(40, 24);
        triangle.lineTo(12, 41);
        triangle.closeSubpath();
        p.fillPath(triangle, QColor(0x4c, 0xc3, 0x6a));
    });
}

QIcon ToolIcons::Stop()
{
    return Draw([](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0xe0, 0x5a, 0x4f));
        p.drawRoundedRect(QRectF(10, 10, 28, 28), 4, 4);
    });
}

QIcon ToolIcons::ZoomAll()
{
    return Draw([](QPainter& p) {
        QPen pen(QColor(0x8c, 0xc4, 0xf0), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        p.setPen(pen);
        // Four corner brackets pointing outwards.
        const QPointF corners[4][3] = {
            { { 6, 18 }, { 6, 6 }, { 18, 6 } },
            { { 30, 6 }, { 42, 6 }, { 42, 18 } },
            { { 42, 30 }, { 42, 42 }, { 30, 42 } },
            { { 18, 42 }, { 6, 42 }, { 6, 30 } },
        };
        for (const auto& corner : corners)
            p.drawPolyline(corner, 3);
        p.setPen(QPen(QColor(0x8c, 0xc4, 0xf0), 3, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(14, 14), QPointF(34, 34));
        p.drawLine(QPointF(34, 14), QPointF(14, 34));
    });
}

QIcon ToolIcons::Exit()
{
    return Draw([](QPainter& p) {
        QPen pen(QColor(0xd8, 0xdc, 0xe0), 4.5, Qt::SolidLine, Qt::RoundCap);
        p.setPen(pen);
        p.drawArc(QRectF(9, 10, 30, 30), 120 * 16, 300 * 16);
        p.drawLine(QPointF(24, 5), QPointF(24, 24));
    });
}

QIcon ToolIcons::Application()
{
    return Draw([](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0x2b, 0x2f, 0x33));
        p.drawRoundedRect(QRectF(2, 2, 44, 44), 9, 9);
        p.setPen(QPen(QColor(0xe8, 0xe2, 0x7a), 3.5, Qt::SolidLine, Qt::RoundCap));
        p.drawArc(QRectF(8, 10, 32, 32), 20 * 16, 140 * 16);
        p.setPen(QPen(QColor(0x4c, 0xc3, 0x6a), 3.5, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(24, 28), QPointF(34, 15));
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0xd8, 0xdc, 0xe0));
        p.drawEllipse(QPointF(24, 28), 3.5, 3.5);
    });
}

} // namespace ventrix::ui
