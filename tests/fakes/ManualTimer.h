#pragma once

#include "platform/Timer.h"

#include <functional>
#include <utility>

namespace ventrix::fakes {

// A timer that ticks only when the test calls Fire(). Counts restarts of its countdown as the Qt
// timer makes them: a changed interval while running, or an enable after a disable; writing the
// interval it already has, or enabling it while enabled, keeps the countdown.
class ManualTimer : public platform::Timer {
public:
    void SetInterval(int milliseconds) override
    {
        if (milliseconds != interval_ && enabled_)
            ++restarts;
        interval_ = milliseconds;
    }
    int Interval() const override { return interval_; }
    void SetEnabled(bool enabled) override
    {
        if (enabled && !enabled_)
            ++restarts;
        enabled_ = enabled;
    }
    bool Enabled() const override { return enabled_; }
    void SetOnTick(std::function<void()> handler) override { onTick_ = std::move(handler); }

    // Runs the tick handler once, as the event loop would, but only while enabled.
    void Fire()
    {
        if (enabled_ && onTick_)
            onTick_();
    }

    int restarts = 0;

private:
    std::function<void()> onTick_;
    int interval_ = 0;
    bool enabled_ = false;
};

} // namespace ventrix::fakes
