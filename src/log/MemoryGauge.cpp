#include "log/MemoryGauge.h"

namespace ventrix::log {

// Placeholder until the memory bar lands.
MemoryGauge::MemoryGauge(const app::AppState& state, platform::SlideBar& bar)
    : m_state(state)
    , m_bar(bar)
{
}

void MemoryGauge::UpdateMemoryGauge() { }

} // namespace ventrix::log
