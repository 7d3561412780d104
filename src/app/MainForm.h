#pragma once

#include "app/Settings.h"
#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "files/FileCommands.h"
#include "graph/GraphCursors.h"
#include "graph/PlotAppearance.h"
#include "graph/Plotter.h"
#include "link/FrameSimulator.h"
#include "link/SerialLink.h"
#include "log/DataLogWindow.h"
#include "log/MemoryGauge.h"
#include "log/SampleLogger.h"
#include "platform/MainControls.h"
#include "platform/Services.h"
#include "state/AppState.h"

#include <functional>

namespace ventrix::app {

// The main window's handlers: owns the subsystems, wires every control, timer and the receive
// event to them, runs start-up and the quit question. The window (Qt or a test) calls Form_Load
// once, then forwards user events to the controls' Click()/selection and the services' events.
class MainForm {
public:
    MainForm(state::AppState& state, platform::MainControls& controls, platform::Services& services);
    MainForm(const MainForm&) = delete;
    MainForm& operator=(const MainForm&) = delete;

    void Form_Load();
    // The window's close request. Asks "Are you sure to quit?"; cancel is set to 1 on No. On Yes
    // the port is closed, the timers stopped, the settings saved and the program ended.
    void Form_Unload(int& cancel);
    // Exit and CMD_EXIT: the same question, the cancel flag starting at 1.
    void Quit();
    // Called after every receive event that accepted a frame (the window shows the reading as
    // live for a while after it).
    void SetOnFrameAccepted(std::function<void()> handler) { m_onFrameAccepted = std::move(handler); }

    link::SerialLink& Link() { return m_link; }
    display::VirtualLcd& Lcd() { return m_lcd; }
    display::AnalogGauge& Gauge() { return m_gauge; }
    Settings& SettingsFile() { return m_settings; }
    graph::PlotAppearance& Appearance() { return m_appearance; }
    graph::Plotter& Plotter() { return m_plotter; }
    graph::GraphCursors& Cursors() { return m_cursors; }
    log::MemoryGauge& Memory() { return m_memory; }
    log::SampleLogger& Logger() { return m_logger; }
    log::DataLogWindow& DataLog() { return m_dataLog; }
    link::FrameSimulator& Simulator() { return m_simulator; }
    files::FileCommands& Files() { return m_files; }

private:
    void WireControls();
    void ShowAbout();

    state::AppState& m_state;
    platform::MainControls& m_controls;
    platform::Services& m_services;
    display::VirtualLcd m_lcd;
    display::AnalogGauge m_gauge;
    link::SerialLink m_link;
    log::MemoryGauge m_memory;
    graph::PlotAppearance m_appearance;
    graph::GraphCursors m_cursors;
    graph::Plotter m_plotter;
    log::SampleLogger m_logger;
    log::DataLogWindow m_dataLog;
    link::FrameSimulator m_simulator;
    Settings m_settings;
    files::FileCommands m_files;
    bool m_ended = false; // the program has been ended: a later close request asks nothing
    std::function<void()> m_onFrameAccepted;
};

} // namespace ventrix::app
