#pragma once

#include "platform/Timer.h"

namespace ventrix::cli {

// A form timer that keeps its interval and enabled state but never ticks. The command-line
// logger gives it to the dial's needle animation, which has nothing to move without a window,
// so a silent meter costs no wake-ups for it.
class IdleTimer : public platform::Timer {
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

} // namespace ventrix::cli
