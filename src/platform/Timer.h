#pragma once

#include <functional>

namespace ventrix::platform {

// A form timer. Changing the interval or enabling a disabled timer restarts the countdown
// (disable, then enable, to restart it at will); the tick handler runs every Interval()
// milliseconds while enabled.
class Timer {
public:
    virtual ~Timer() = default;
    virtual void SetInterval(int milliseconds) = 0;
    virtual int Interval() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetOnTick(std::function<void()> handler) = 0;
};

} // namespace ventrix::platform
