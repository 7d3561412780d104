#include "ui/LcdPanel.h"

#include <QHBoxLayout>
#include <QLabel>

namespace ventrix::ui {

// Placeholder look until the LCD lands: plain labels with the right names.
LcdPanel::LcdPanel(QWidget* parent)
    : QFrame(parent)
{
    setObjectName("DIGIT_FRAME");
    auto* layout = new QHBoxLayout(this);
    for (const char* name : { "NEG_LBL", "DIGIT_LBL", "MODE_LBL", "HOLD_LBL", "AUTO_LBL", "BATTERY_LBL",
             "MIN_LBL", "FUNCTION_LBL" }) {
        auto* label = new QLabel(this);
        label->setObjectName(name);
        layout->addWidget(label);
    }
}

} // namespace ventrix::ui
