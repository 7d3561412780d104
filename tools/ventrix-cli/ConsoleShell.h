#pragma once

#include "platform/Shell.h"

#include <functional>
#include <utility>

namespace ventrix::cli {

// The program as a whole, seen from a console: no mouse pointer, no progress display and no
// help viewer; ending the program runs the handler given (the logger's own end).
class ConsoleShell : public platform::Shell {
public:
    void SetOnEnd(std::function<void()> onEnd) { m_onEnd = std::move(onEnd); }
    void SetBusyPointer(bool) override { }
    void EndProgram() override
    {
        if (m_onEnd)
            m_onEnd();
    }

private:
    std::function<void()> m_onEnd;
};

} // namespace ventrix::cli
