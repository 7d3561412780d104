#include "ui/LcdLabel.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace ventrix::ui {

namespace {

const char* const kFontDir = "/usr/share/fonts/truetype/dseg/";
const char* const kDigitFontFile = "DSEG7Classic-BoldItalic.ttf";

// Dark liquid crystal on the reflector; the unlit segments are just visible, as on real glass.
const QColor kInk(24, 33, 26);
constexpr int kGhostAlpha = 16;
constexpr int kShadowAlpha = 38;
constexpr double kDisabledOpacity = 0.35;
constexpr double kFadedOpacity = 0.3;

// The family name of the segment font, empty when it could not be loaded.
QString& DigitFamily()
{
    static QString family;
    return family;
}

QFont WordFont(double pixelSize)
{
    QFont font(QStringLiteral("DejaVu Sans Condensed"));
    font.setStyleHint(QFont::SansSerif);
    font.setBold(true);
    font.setStretch(QFont::SemiCondensed);
    font.setPixelSize(std::max(1, static_cast<int>(pixelSize)));
    return font;
}

QFont DigitFont(double pixelSize)
{
    if (DigitFamily().isEmpty()) {
        QFont fallback(QStringLiteral("DejaVu Sans Mono"));
        fallback.setStyleHint(QFont::Monospace);
        fallback.setBold(true);
        fallback.setPixelSize(std::max(1, static_cast<int>(pixelSize)));
        return fallback;
    }
    QFont font(DigitFamily());
    font.setBold(true);
    font.setItalic(true);
    font.setPixelSize(std::max(1, static_cast<int>(pixelSize)));
    return font;
}

// Draws a shape twice: first a soft shadow that the segments cast on the reflector behind the
// glass, then the segments themselves.
void DrawInkPath(QPainter& painter, const QPainterPath& path, const QColor& ink, double shadowOffset)
{
    painter.setPen(Qt::NoPen);
    QColor shadow = ink;
    shadow.setAlpha(kShadowAlpha);
    painter.setBrush(shadow);
    painter.drawPath(path.translated(shadowOffset, shadowOffset));
    painter.setBrush(ink);
    painter.drawPath(path);
}

void DrawInkText(QPainter& painter, const QPointF& baseline, const QString& text, const QFont& font,
    const QColor& ink, double shadowOffset)
{
    QPainterPath path;
    path.addText(baseline, font, text);
    DrawInkPath(painter, path, ink, shadowOffset);
}

// Text laid out cell by cell on the segment face from x = 0 on the baseline, with its total
// advance. The marker '|' stands for a one lit on the left-hand segments (the meter's I): the
// face's own one is moved across its cell.
struct SegmentRunPath {
    QPainterPath path;
    double width = 0.0;
};

SegmentRunPath SegmentRun(const QString& text, const QFont& font)
{
    const QFontMetricsF metrics(font);
    const double leftShift = metrics.tightBoundingRect(QStringLiteral("8")).width()
        - metrics.tightBoundingRect(QStringLiteral("1")).width();
    SegmentRunPath run;
    for (QChar ch : text) {
        if (ch == QLatin1Char('|')) {
            run.path.addText(QPointF(run.width - leftShift, 0), font, QStringLiteral("1"));
            run.width += metrics.horizontalAdvance(QStringLiteral("1"));
        } else {
            run.path.addText(QPointF(run.width, 0), font, QString(ch));
            run.width += metrics.horizontalAdvance(ch);
        }
    }
    return run;
}

} // namespace

LcdLabel::LcdLabel(Role role, const char* objectName, QWidget* parent)
    : QLabel(parent)
    , m_role(role)
{
    setObjectName(QString::fromLatin1(objectName));
    setAttribute(Qt::WA_TranslucentBackground);
    setAutoFillBackground(false);
}

void LcdLabel::SetLegendPixels(double pixels)
{
    if (pixels == m_legendPixels)
        return;
    m_legendPixels = pixels;
    update();
}

void LcdLabel::SetFaded(bool faded)
{
    if (faded == m_faded)
        return;
    m_faded = faded;
    update();
}

LcdLabel::UnitFace LcdLabel::UnitFaceOf(const QString& text)
{
    UnitFace face;
    QString unit = text.trimmed();
    if (unit.endsWith(QStringLiteral(" AC"))) {
        face.ac = true;
        unit.chop(3);
    }
    unit.replace(QStringLiteral("OHM"), QString(QChar(0x03A9)));
    // A prefix letter stands before a unit; "CONT" and "hFE" have none.
    if (unit.size() > 1 && unit != QStringLiteral("CONT")) {
        if (unit.front() == QLatin1Char('u'))
            unit.front() = QChar(0x00B5);
        else if (unit.front() == QLatin1Char('K'))
            unit.front() = QLatin1Char('k');
    }
    face.unit = unit;
    return face;
}

bool LcdLabel::LoadSegmentFonts()
{
    static const bool loaded = [] {
        const int id = QFontDatabase::addApplicationFont(QString::fromLatin1(kFontDir) + kDigitFontFile);
        const QStringList families = id < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(id);
        if (!families.isEmpty())
            DigitFamily() = families.front();
        return !families.isEmpty();
    }();
    return loaded;
}

QString LcdLabel::SegmentText(const QString& text)
{
    // The face draws some capitals differently from the meter's patterns: its O is small, its S
    // is not the five and its H is the lower-case h. The meter's I lights the left-hand pair of
    // segments, which the face has no character for ('|' asks the painter for it).
    QString mapped;
    mapped.reserve(text.size());
    for (QChar ch : text) {
        switch (ch.unicode()) {
        case 'O':
            mapped += QLatin1Char('0');
            break;
        case 'S':
            mapped += QLatin1Char('5');
            break;
        case 'H':
            mapped += QLatin1Char('X');
            break;
        case 'I':
            mapped += QLatin1Char('|');
            break;
        case ' ':
            mapped += QLatin1Char('!'); // the face's blank, as wide as a digit
            break;
        default:
            mapped += ch;
            break;
        }
    }
    return mapped;
}

void LcdLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    if (!isEnabled())
        painter.setOpacity(kDisabledOpacity);
    else if (m_faded)
        painter.setOpacity(kFadedOpacity);

    const QRectF area = rect();
    switch (m_role) {
    case Role::Digits:
        PaintDigits(painter, area, kInk);
        break;
    case Role::Minus:
        PaintMinus(painter, area, kInk);
        break;
    case Role::Annunciator:
        PaintWord(painter, area, text(), m_legendPixels, kInk, Qt::AlignCenter);
        break;
    case Role::Battery:
        if (!text().isEmpty()) {
            const double symbolWidth = m_legendPixels * 1.6;
            PaintBatterySymbol(painter, QRectF(area.left(), area.top(), symbolWidth, area.height()), kInk);
            PaintWord(painter, area.adjusted(symbolWidth + m_legendPixels * 0.3, 0, 0, 0), text(),
                m_legendPixels, kInk, Qt::AlignLeft | Qt::AlignVCenter);
        }
        break;
    case Role::Unit:
        PaintUnit(painter, area, kInk);
        break;
    }
}

void LcdLabel::PaintDigits(QPainter& painter, const QRectF& area, const QColor& ink) const
{
    // Size the face so that a digit fills the label's height, then shrink it if the text (or
    // the four unlit digit cells) would not fit the width.
    const bool segmentFace = !DigitFamily().isEmpty();
    const QString shown = segmentFace ? SegmentText(text()) : text();
    const QString ghost = QStringLiteral("8.8.8.8");
    const double reference = 100.0;
    const QFont referenceFont = DigitFont(reference);
    const QFontMetricsF referenceMetrics(referenceFont);
    const QRectF eight = referenceMetrics.tightBoundingRect(QStringLiteral("8"));
    double pixelSize = reference * area.height() * 0.92 / eight.height();
    const double widest
        = std::max(referenceMetrics.horizontalAdvance(ghost), SegmentRun(shown, referenceFont).width);
    pixelSize = std::min(pixelSize, reference * area.width() * 0.97 / widest);

    const QFont font = DigitFont(pixelSize);
    const QFontMetricsF metrics(font);
    const QRectF digitBox = metrics.tightBoundingRect(QStringLiteral("8"));
    const double baseline = area.center().y() - digitBox.center().y();
    const double right = area.right() - area.width() * 0.01;
    const double shadowOffset = std::max(1.0, pixelSize * 0.025);

    if (segmentFace) {
        QColor ghostInk = ink;
        ghostInk.setAlpha(kGhostAlpha);
        painter.setPen(Qt::NoPen);
        QPainterPath ghostPath;
        ghostPath.addText(QPointF(right - metrics.horizontalAdvance(ghost), baseline), font, ghost);
        painter.setBrush(ghostInk);
        painter.drawPath(ghostPath);
    }

    const SegmentRunPath run = SegmentRun(shown, font);
    DrawInkPath(painter, run.path.translated(right - run.width, baseline), ink, shadowOffset);
}

void LcdLabel::PaintMinus(QPainter& painter, const QRectF& area, const QColor& ink) const
{
    // One segment with pointed ends, as thick as the digits' segments: the label is as tall as
    // the digits beside it and the bar sits at their middle.
    const double thickness = std::max(2.0, area.height() * 0.092);
    const double length = std::min(area.width() * 0.9, area.height() * 0.42);
    const QPointF centre = area.center();
    const double half = thickness / 2.0;
    QPainterPath bar;
    bar.moveTo(centre.x() - length / 2, centre.y());
    bar.lineTo(centre.x() - length / 2 + half, centre.y() - half);
    bar.lineTo(centre.x() + length / 2 - half, centre.y() - half);
    bar.lineTo(centre.x() + length / 2, centre.y());
    bar.lineTo(centre.x() + length / 2 - half, centre.y() + half);
    bar.lineTo(centre.x() - length / 2 + half, centre.y() + half);
    bar.closeSubpath();
    const double shadowOffset = std::max(1.0, area.height() * 0.023);
    QColor shadow = ink;
    shadow.setAlpha(kShadowAlpha);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawPath(bar.translated(shadowOffset, shadowOffset));
    painter.setBrush(ink);
    painter.drawPath(bar);
}

void LcdLabel::PaintWord(QPainter& painter, QRectF area, const QString& word, double pixels,
    const QColor& ink, Qt::Alignment alignment) const
{
    if (word.isEmpty())
        return;
    // One size for every word of a kind; only a word that could not fit at all is narrowed.
    QFont font = WordFont(pixels);
    double textWidth = QFontMetricsF(font).horizontalAdvance(word);
    if (textWidth > area.width()) {
        font.setPixelSize(std::max(1, static_cast<int>(pixels * area.width() / textWidth)));
        textWidth = QFontMetricsF(font).horizontalAdvance(word);
    }
    const QFontMetricsF metrics(font);
    double x = area.left();
    if (alignment & Qt::AlignRight)
        x = area.right() - textWidth;
    else if (alignment & Qt::AlignHCenter)
        x = area.center().x() - textWidth / 2;
    double baseline = area.center().y() + metrics.capHeight() / 2.0;
    if (alignment & Qt::AlignBottom)
        baseline = area.bottom();
    else if (alignment & Qt::AlignTop)
        baseline = area.top() + metrics.capHeight();
    DrawInkText(painter, QPointF(x, baseline), word, font, ink, std::max(0.8, pixels * 0.05));
}

void LcdLabel::PaintUnit(QPainter& painter, const QRectF& area, const QColor& ink) const
{
    // The unit sits on the digits' baseline, right-aligned; AC stands above it in the
    // annunciators' size.
    // Every unit is drawn at one size: the legend size, or less where the widest unit the meter
    // shows would not fit the box.
    static const QStringList kWidestUnits { QStringLiteral("Logic"), QStringLiteral("CONT"),
        QStringLiteral("dBm"), QStringLiteral("MHz") };
    double pixels = m_legendPixels;
    const QFontMetricsF probe(WordFont(pixels));
    double widest = 0.0;
    for (const QString& unit : kWidestUnits)
        widest = std::max(widest, probe.horizontalAdvance(unit));
    if (widest > area.width())
        pixels *= area.width() / widest;

    const UnitFace face = UnitFaceOf(text());
    const double baseline = area.top() + area.height() * 0.92;
    const QRectF unitArea(area.left(), area.top(), area.width(), baseline - area.top());
    PaintWord(painter, unitArea, face.unit, pixels, ink, Qt::AlignRight | Qt::AlignBottom);
    if (face.ac) {
        const double gap = m_legendPixels * 0.35;
        const double acBottom = baseline - QFontMetricsF(WordFont(m_legendPixels)).capHeight() - gap;
        PaintWord(painter, QRectF(area.left(), area.top(), area.width(), acBottom - area.top()),
            QStringLiteral("AC"), m_legendPixels * 0.56, ink, Qt::AlignRight | Qt::AlignBottom);
    }
}

void LcdLabel::PaintBatterySymbol(QPainter& painter, const QRectF& area, const QColor& ink) const
{
    // A flat battery outline with one bar left: what a meter shows next to BAT.
    const double h = area.height() * 0.56;
    const double w = area.width() * 0.82;
    const QRectF body(area.left(), area.center().y() - h / 2, w, h);
    const double line = std::max(1.0, h * 0.16);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(body.adjusted(line / 2, line / 2, -line / 2, -line / 2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawRect(QRectF(body.right(), body.top() + h * 0.28, area.width() * 0.1, h * 0.44));
    painter.drawRect(QRectF(body.left() + line * 1.8, body.top() + line * 1.8, w * 0.2, h - line * 3.6));
}

} // namespace ventrix::ui
