#pragma once

#include "app/SettingsBytes.h"
#include "platform/AppPaths.h"
#include "platform/GraphControl.h"
#include "platform/MainControls.h"
#include "state/AppState.h"

#include <functional>

namespace ventrix::app {

// The settings file DEFAULT.CFG (seven bytes: port, sampling rate, line width, line style, point
// style, fill, grid) and the COM and sampling-rate menu groups. Loading never fails: anything
// wrong falls back to defaults silently; saving fails silently.
class Settings {
public:
    Settings(state::AppState& state, platform::MainControls& controls, platform::GraphControl& graph,
        const platform::AppPaths& paths, std::function<void()> updateMemoryGauge);
    void LoadSettings();
    void SaveSettings();
    void SelectComPort(int port); // COM1..COM4
    void SelectSampleRate(int seconds); // SEC1..SEC60

private:
    // Puts each choice into AppState, the option menus' check marks and the graph, group by
    // group in file order.
    void ApplySettings(const SettingsChoice& choice);

    state::AppState& m_state;
    platform::MainControls& m_controls;
    platform::GraphControl& m_graph;
    const platform::AppPaths& m_paths;
    std::function<void()> m_updateMemoryGauge;
};

} // namespace ventrix::app
