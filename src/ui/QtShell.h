#pragma once

#include "platform/Shell.h"

#include <functional>

namespace ventrix::ui {

// The running program as the handlers see it: the hourglass pointer while a file is written
// (an application-wide override cursor, set once however often it is asked for) and ending the
// program. EndProgram first runs the window's "close without asking" hook, then leaves the event
// loop with exit code 0.
class QtShell : public platform::Shell {
public:
    ~QtShell() override;

    void SetBusyPointer(bool busy) override;
    void EndProgram() override;

    void SetOnEnd(std::function<void()> closeWindows) { m_onEnd = std::move(closeWindows); }
    bool Busy() const { return m_busy; }

private:
    std::function<void()> m_onEnd;
    bool m_busy = false;
};

} // namespace ventrix::ui
