#include "app/Settings.h"

#include <utility>

namespace ventrix::app {

// Placeholder until the settings file lands.
Settings::Settings(AppState& state, platform::MainControls& controls, platform::GraphControl& graph,
    const platform::AppPaths& paths, std::function<void()> updateMemoryGauge)
    : m_state(state)
    , m_controls(controls)
    , m_graph(graph)
    , m_paths(paths)
    , m_updateMemoryGauge(std::move(updateMemoryGauge))
{
}

void Settings::LoadSettings() { }
void Settings::SaveSettings() { }
void Settings::SelectComPort(int) { }
void Settings::SelectSampleRate(int) { }

} // namespace ventrix::app
