#pragma once

#include "platform/Control.h"

namespace ventrix::platform {

// A text label (LCD segments, cursor readouts). Only caption, visibility and enabled state.
class Label : public Control {
public:
    using Control::Control;
};

} // namespace ventrix::platform
