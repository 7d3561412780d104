#pragma once

#include "platform/Shell.h"

#include <functional>

namespace ventrix::ui {

// The running program as the handlers see it: the hourglass pointer while a file is written
// (an application-wide override cursor, set once however often it is asked for) and ending the
// program. EndProgram first runs the window's "close without asking" hook, then leaves the event
// loop with exit code 0. ShowHelp hands the view to the help window set by the composition root.
class QtShell : public platform::Shell {
public:
    ~QtShell() override;

    void SetBusyPointer(bool busy) override;
    void EndProgram() override;
    void ShowHelp(platform::HelpView view) override;

    void SetOnEnd(std::function<void()> closeWindows) { m_onEnd = std::move(closeWindows); }
    void SetOnHelp(std::function<void(platform::HelpView)> showHelp) { m_onHelp = std::move(showHelp); }
    bool Busy() const { return m_busy; }

private:
    std::function<void()> m_onEnd;
    std::function<void(platform::HelpView)> m_onHelp;
    bool m_busy = false;
};

} // namespace ventrix::ui
