#pragma once

#include <QObject>

#include <functional>
#include <vector>

namespace ventrix::io {

// Keeps the single-threaded handler model while a modal box runs its own event loop: timer
// ticks and serial receive events that arrive meanwhile are not run at once but deferred, one
// per source however often it fired, and run in order of arrival from the event loop once the
// last box is closed, after the handler that showed the box has finished (so a stop or quit it
// goes on to do can still Forget them). Shared by the dialog, timer and serial adapters of one
// program.
class ModalGate {
public:
    // Runs a modal box under the gate.
    template <typename F> auto Hold(F&& showBox)
    {
        ++m_depth;
        struct Release {
            ModalGate& gate;
            ~Release() { gate.Leave(); }
        } release { *this };
        return showBox();
    }

    bool IsHeld() const { return m_depth > 0; }

    // Runs the event now when no box is open; otherwise remembers it under its source, once.
    void Dispatch(const void* source, std::function<void()> event);
    // Forgets a deferred event of this source (a timer restarted or disabled, a port closed).
    void Forget(const void* source);

private:
    void Leave();
    void Drain();

    struct Deferred {
        const void* source;
        std::function<void()> event;
    };
    int m_depth = 0;
    bool m_drainPosted = false;
    std::vector<Deferred> m_deferred;
    QObject m_context; // receives the posted drain; a drain still queued dies with the gate
};

} // namespace ventrix::io
