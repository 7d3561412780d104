#pragma once

#include <QFrame>

namespace ventrix::ui {

// The virtual LCD: the frame DIGIT_FRAME holding the labels DIGIT_LBL, NEG_LBL, MODE_LBL,
// HOLD_LBL, AUTO_LBL, BATTERY_LBL, MIN_LBL and FUNCTION_LBL (QLabel objects found by objectName
// and bound to their models by the main window). It draws the bezel and the glass and places
// the labels in fixed spots that scale with its size; what each label shows is set from outside.
class LcdPanel : public QFrame {
    Q_OBJECT
public:
    explicit LcdPanel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceLabels();
};

} // namespace ventrix::ui
