#include "ui/QtPrinter.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QPicture>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace ventrix::ui {

namespace {
constexpr int kFontPoints = 10;
constexpr int kTabColumns = 14;
} // namespace

QtPrinter::QtPrinter(QLabel& picture)
    : m_picture(picture)
{
}

QtPrinter::~QtPrinter()
{
    Drop();
}

void QtPrinter::Drop()
{
    if (!m_painter.isActive())
        return;
    m_printer.abort();
    m_painter.end();
}

bool QtPrinter::SetOrientation(int orientation)
{
    Drop();
    return m_printer.setPageOrientation(orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
}

bool QtPrinter::SetCopies(int copies)
{
    m_printer.setCopyCount(copies);
    return true;
}

bool QtPrinter::Begin()
{
    if (m_painter.isActive())
        return true;
    if (!m_painter.begin(&m_printer))
        return false;
    QFont font = m_painter.font();
    font.setPointSize(kFontPoints);
    m_painter.setFont(font);
    m_nextLine = 0.0;
    return true;
}

double QtPrinter::Millimetre() const
{
    return m_printer.resolution() / 25.4;
}

QRectF QtPrinter::PrintableArea() const
{
    return m_printer.pageLayout().paintRectPixels(m_printer.resolution());
}

bool QtPrinter::PrintLine(const std::string& text)
{
    if (!Begin())
        return false;
    const QFontMetricsF metrics(m_painter.font(), &m_printer);
    const double tabStop = metrics.averageCharWidth() * kTabColumns;
    const double baseline = m_nextLine + metrics.ascent();
    double x = 0.0;
    const QStringList pieces = QString::fromStdString(text).split(QLatin1Char('\t'));
    for (int i = 0; i < pieces.size(); ++i) {
        if (i > 0)
            x = (std::floor(x / tabStop) + 1.0) * tabStop;
        m_painter.drawText(QPointF(x, baseline), pieces[i]);
        x += metrics.horizontalAdvance(pieces[i]);
    }
    m_nextLine += metrics.lineSpacing();
    return true;
}

bool QtPrinter::PaintPicture(double left, double top, double scale)
{
    const QPicture picture = m_picture.picture(Qt::ReturnByValue);
    if (picture.isNull() || !Begin())
        return false;
    const QRect bounds = picture.boundingRect();
    if (bounds.isEmpty())
        return false;
    const double mm = Millimetre();
    const QRectF page = PrintableArea();
    const double x = left * mm;
    const double y = m_nextLine + top * mm;
    double width = bounds.width() * scale * mm;
    double height = bounds.height() * scale * mm;
    const double fit = std::min({ 1.0, (page.width() - x) / width, (page.height() - y) / height });
    if (fit <= 0.0)
        return false;
    width *= fit;
    height *= fit;

    // A picture plays back at its own resolution, scaled to the device's: undo that scaling so
    // that one picture pixel maps to the size asked for.
    const double playScale = static_cast<double>(picture.logicalDpiX()) / m_printer.logicalDpiX();
    m_painter.save();
    m_painter.translate(x, y);
    m_painter.scale(width / bounds.width() * playScale, height / bounds.height() * playScale);
    m_painter.drawPicture(-bounds.topLeft(), picture);
    m_painter.restore();
    m_nextLine = y + height;
    return true;
}

bool QtPrinter::EndDocument()
{
    if (!Begin())
        return false;
    return m_painter.end();
}

} // namespace ventrix::ui
