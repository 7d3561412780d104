#include "app/MainForm.h"

namespace ventrix::app {

MainForm::MainForm(AppState& state, platform::MainControls& controls, platform::Services& services)
    : m_state(state)
    , m_controls(controls)
    , m_services(services)
    , m_lcd(state, controls)
    , m_gauge(state, services.KNOB_ANALOG, services.timers.ANALOG_TIMER)
    , m_link(state, controls, services, m_lcd, m_gauge)
    , m_memory(state, controls.MEMORY_BAR)
    , m_appearance(controls, services.GRAPH_CWGraph)
    , m_settings(state, controls, services.GRAPH_CWGraph, services.paths, [this] { m_memory.UpdateMemoryGauge(); })
{
    WireControls();
}

// Placeholders until start-up and shut-down land.
void MainForm::Form_Load() { }
void MainForm::Form_Unload(int&) { }
void MainForm::Quit() { }
void MainForm::WireControls() { }

} // namespace ventrix::app
