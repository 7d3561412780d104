#pragma once

#include <QLabel>

namespace ventrix::ui {

// One element of the virtual LCD glass: a QLabel that draws its own text() as dark liquid
// crystal on the panel's glass, in the manner of its role (seven-segment digits, the minus bar,
// a small annunciator word, the unit text). Words are drawn at the legend size the panel gives
// (one size for every word of a kind, whatever its length), and the unit as a meter's glass
// prints it (kΩ, µA, with AC as a small legend above). It reacts to setText, setVisible and
// setEnabled like any label, draws faded while told so, and decides nothing about what is shown.
class LcdLabel : public QLabel {
public:
    enum class Role {
        Digits, // big seven-segment digits with the unlit segments faintly visible
        Minus, // the minus sign: a single segment bar, shown or hidden, whatever the text
        Annunciator, // a small word such as HOLD or AUTO
        Battery, // the low-battery word with a battery symbol in front of it
        Unit // the unit and mode text beside the digits
    };

    LcdLabel(Role role, const char* objectName, QWidget* parent);

    Role LabelRole() const { return m_role; }

    // The pixel size of the words this label draws (annunciators and the unit).
    void SetLegendPixels(double pixels);
    // Faded ink: the reading is not live.
    void SetFaded(bool faded);

    // What the unit label draws for its text: the unit with the prefix and unit symbols of the
    // glass (u -> µ, K -> k, OHM -> Ω), and whether a small AC legend goes with it.
    struct UnitFace {
        QString unit;
        bool ac = false;
    };
    static UnitFace UnitFaceOf(const QString& text);

    // What the digits label actually draws for its text: letters the seven-segment face cannot
    // show are mapped to the segment shapes the meter uses, and blanks keep a digit's width.
    static QString SegmentText(const QString& text);

    // Registers the seven- and fourteen-segment fonts once per process; false when they are not
    // installed, in which case the digits are drawn with an ordinary bold face.
    static bool LoadSegmentFonts();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintDigits(QPainter& painter, const QRectF& area, const QColor& ink) const;
    void PaintMinus(QPainter& painter, const QRectF& area, const QColor& ink) const;
    void PaintWord(QPainter& painter, QRectF area, const QString& word, double pixels, const QColor& ink,
        Qt::Alignment alignment) const;
    void PaintUnit(QPainter& painter, const QRectF& area, const QColor& ink) const;
    void PaintBatterySymbol(QPainter& painter, const QRectF& area, const QColor& ink) const;

    Role m_role;
    double m_legendPixels = 12.0;
    bool m_faded = false;
};

} // namespace ventrix::ui
