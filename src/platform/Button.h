#pragma once

#include "platform/Control.h"

#include <functional>
#include <utility>

namespace ventrix::platform {

// A push button of the tool bar or a panel. Click() runs the handler the form wired to it, and
// does nothing while the button is disabled, as a user could not press it then.
class Button : public Control {
public:
    using Control::Control;

    void SetOnClick(std::function<void()> handler) { m_onClick = std::move(handler); }
    void Click()
    {
        if (Enabled() && m_onClick)
            m_onClick();
    }

private:
    std::function<void()> m_onClick;
};

} // namespace ventrix::platform
