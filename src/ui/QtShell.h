#pragma once

#include "platform/Shell.h"

#include <QPointer>

#include <cstddef>
#include <functional>

class QProgressBar;
class QStatusBar;

namespace ventrix::ui {

// The running program as the handlers see it: the hourglass pointer while a file is written
// (an application-wide override cursor, set once however often it is asked for), a progress bar
// in the status bar given to it while the pointer is busy, and ending the program. The bar is
// drawn at once, without running the event loop, so no other handler runs meanwhile; it goes
// when the pointer is reset. EndProgram first runs the window's "close without asking" hook,
// then leaves the event loop with exit code 0. ShowHelp hands the view to the help window set by
// the composition root.
class QtShell : public platform::Shell {
public:
    ~QtShell() override;

    void SetBusyPointer(bool busy) override;
    void ShowProgress(std::size_t done, std::size_t total) override;
    void EndProgram() override;
    void ShowHelp(platform::HelpView view) override;

    // Where the progress bar goes; without a status bar no progress is shown.
    void SetStatusBar(QStatusBar* statusBar);

    void SetOnEnd(std::function<void()> closeWindows) { m_onEnd = std::move(closeWindows); }
    void SetOnHelp(std::function<void(platform::HelpView)> showHelp) { m_onHelp = std::move(showHelp); }
    bool Busy() const { return m_busy; }

private:
    std::function<void()> m_onEnd;
    std::function<void(platform::HelpView)> m_onHelp;
    bool m_busy = false;
    QPointer<QStatusBar> m_statusBar;
    QPointer<QProgressBar> m_progress;
    int m_percent = -1;
};

} // namespace ventrix::ui
