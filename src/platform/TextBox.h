#pragma once

#include "platform/Control.h"

#include <cstddef>
#include <string>

namespace ventrix::platform {

// A multi-line, read-only text box (DATA_LOG_TXT). The caret position lets a handler keep the
// newest line in view.
class TextBox : public Control {
public:
    using Control::Control;

    const std::string& Text() const { return m_text; }
    void SetText(const std::string& text)
    {
        m_text = text;
        if (m_caret > m_text.size())
            m_caret = m_text.size();
        Changed();
    }

    std::size_t Caret() const { return m_caret; }
    void SetCaret(std::size_t caret) { Assign(m_caret, caret > m_text.size() ? m_text.size() : caret); }

private:
    std::string m_text;
    std::size_t m_caret = 0;
};

} // namespace ventrix::platform
