#pragma once

#include "app/AppState.h"
#include "platform/SlideBar.h"

namespace ventrix::log {

// The memory bar: how much logging time is left at the current sampling interval, as a text
// ("5 Days 0 Hr 0 Min") and a percentage of capacity left. Redraws only when the text changes.
class MemoryGauge {
public:
    MemoryGauge(const app::AppState& state, platform::SlideBar& bar);
    void UpdateMemoryGauge();

private:
    const app::AppState& m_state;
    platform::SlideBar& m_bar;
};

} // namespace ventrix::log
