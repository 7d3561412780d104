#pragma once

#include "platform/Control.h"

namespace ventrix::platform {

// A container whose visibility hides everything inside it (DIGIT_FRAME), or a hidden picture
// holder (picPRINT).
class Frame : public Control {
public:
    using Control::Control;
};

} // namespace ventrix::platform
