#pragma once

#include "platform/Timer.h"

#include <functional>
#include <utility>

namespace ventrix::fakes {

// A timer that ticks only when the test calls Fire(). Counts restarts (interval writes and
// enables) so tests can tell whether a handler restarted it.
class ManualTimer : public platform::Timer {
public:
    void SetInterval(int milliseconds) override
    {
        interval_ = milliseconds;
        ++restarts;
    }
    int Interval() const override { return interval_; }
    void SetEnabled(bool enabled) override
    {
        enabled_ = enabled;
        if (enabled)
            ++restarts;
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
