#pragma once

#include "platform/Timer.h"

#include <functional>
#include <utility>

namespace ventrix::cli {

// A form timer that runs a second function after every tick handler the form wired to it, so a
// console can show what the tick did (a sample taken) without the form knowing. Everything else
// goes straight to the timer it wraps.
class TickObserver : public platform::Timer {
public:
    TickObserver(platform::Timer& timer, std::function<void()> afterTick)
        : m_timer(timer)
        , m_afterTick(std::move(afterTick))
    {
    }

    void SetInterval(int milliseconds) override { m_timer.SetInterval(milliseconds); }
    int Interval() const override { return m_timer.Interval(); }
    void SetEnabled(bool enabled) override { m_timer.SetEnabled(enabled); }
    bool Enabled() const override { return m_timer.Enabled(); }
    void SetOnTick(std::function<void()> handler) override
    {
        m_timer.SetOnTick([this, handler = std::move(handler)] {
            if (handler)
                handler();
            if (m_afterTick)
                m_afterTick();
        });
    }

private:
    platform::Timer& m_timer;
    std::function<void()> m_afterTick;
};

} // namespace ventrix::cli
