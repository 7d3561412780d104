#pragma once

#include "platform/Control.h"

#include <functional>
#include <utility>

namespace ventrix::platform {

// A menu entry, a submenu or a separator (caption "-"). Carries a check mark; Click() runs the
// wired handler unless the entry is disabled.
class MenuItem : public Control {
public:
    using Control::Control;

    bool Checked() const { return m_checked; }
    void SetChecked(bool checked) { Assign(m_checked, checked); }

    void SetOnClick(std::function<void()> handler) { m_onClick = std::move(handler); }
    void Click()
    {
        if (Enabled() && m_onClick)
            m_onClick();
    }

private:
    bool m_checked = false;
    std::function<void()> m_onClick;
};

} // namespace ventrix::platform
