#pragma once

#include "platform/Control.h"

namespace ventrix::platform {

// A horizontal gauge bar with a value from 0 to 100 and a text drawn on it (MEMORY_BAR). The
// text is the caption.
class SlideBar : public Control {
public:
    using Control::Control;

    double Value() const { return m_value; }
    void SetValue(double value) { Assign(m_value, value); }

private:
    double m_value = 0.0;
};

} // namespace ventrix::platform
