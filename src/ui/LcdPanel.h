#pragma once

#include <QFrame>

namespace ventrix::ui {

// The virtual LCD: the frame DIGIT_FRAME holding the labels DIGIT_LBL, NEG_LBL, MODE_LBL,
// HOLD_LBL, AUTO_LBL, BATTERY_LBL, MIN_LBL and FUNCTION_LBL (QLabel objects found by objectName
// and bound to their models by the main window). It draws the bezel and the glass at a fixed
// aspect ratio, centred in whatever size it is given, and places the labels in fixed spots that
// scale with it; every annunciator gets one legend size and the unit another. While the reading
// is stale (set from outside) the glass is drawn unlit and the segments faded. What each label
// shows is set from outside.
class LcdPanel : public QFrame {
    Q_OBJECT
public:
    explicit LcdPanel(QWidget* parent = nullptr);

    // Width over height of the drawn LCD.
    static constexpr double kAspect = 420.0 / 150.0;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    void SetStale(bool stale);
    bool Stale() const { return m_stale; }
    // Where the LCD is drawn inside the widget.
    QRectF LcdRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceLabels();

    bool m_stale = false;
};

} // namespace ventrix::ui
