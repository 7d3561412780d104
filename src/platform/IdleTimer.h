#pragma once

#include "platform/Timer.h"

namespace ventrix::platform {

// A form timer that keeps its interval and enabled state but never ticks: for a timer whose work
// has nothing to act on (the dial's needle without a window, timers of a replayed stream), so it
// costs no wake-ups.
class IdleTimer : public Timer {
public:
    void SetInterval(int milliseconds) override { m_interval = milliseconds; }
    int Interval() const override { return m_interval; }
    void SetEnabled(bool enabled) override { m_enabled = enabled; }
    bool Enabled() const override { return m_enabled; }
    void SetOnTick(std::function<void()>) override { }

private:
    int m_interval = 0;
    bool m_enabled = false;
};

} // namespace ventrix::platform
