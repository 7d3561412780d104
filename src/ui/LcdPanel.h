#pragma once

#include <QFrame>

namespace ventrix::ui {

// The virtual LCD: the frame DIGIT_FRAME holding the labels DIGIT_LBL, NEG_LBL, MODE_LBL,
// HOLD_LBL, AUTO_LBL, BATTERY_LBL, MIN_LBL and FUNCTION_LBL (QLabel objects found by objectName
// and bound to their models by the main window). Only drawing lives here.
class LcdPanel : public QFrame {
    Q_OBJECT
public:
    explicit LcdPanel(QWidget* parent = nullptr);
};

} // namespace ventrix::ui
