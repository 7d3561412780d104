#include "app/MainForm.h"

#include "link/FrameDecoder.h"

#include <cstddef>

namespace ventrix::app {

namespace {
constexpr const char* kTitle = "Ventrix";
constexpr int kAnalogIntervalMs = 200;

void Fill(platform::ComboBox& list, std::initializer_list<const char*> items)
{
    list.Clear();
    for (const char* item : items)
        list.AddItem(item);
    list.SetListIndex(0);
}
} // namespace

MainForm::MainForm(state::AppState& state, platform::MainControls& controls, platform::Services& services)
    : m_state(state)
    , m_controls(controls)
    , m_services(services)
    , m_lcd(state, controls)
    , m_gauge(state, services.KNOB_ANALOG, services.timers.ANALOG_TIMER)
    , m_link(state, controls, services, m_lcd, m_gauge)
    , m_memory(state, controls.MEMORY_BAR)
    , m_appearance(controls, services.GRAPH_CWGraph)
    , m_cursors(state, controls, services.GRAPH_CWGraph)
    , m_plotter(state, controls, services.GRAPH_CWGraph, m_cursors)
    , m_logger(state, controls, services, m_memory, m_link, [this] { m_plotter.PlotSample(); })
    , m_dataLog(state, controls, services, m_memory, m_link, m_logger, [this] { m_plotter.ShowEmptyGraph(); })
    , m_simulator(
          state, m_link, services.timers.DEBUG_TIMER, services.clock, [this] { m_logger.AppendSample(); },
          [this] { m_plotter.PlotSample(); })
    , m_settings(
          state, controls, services.GRAPH_CWGraph, services.paths, [this] { m_memory.UpdateMemoryGauge(); })
    , m_files(state, controls, services)
{
    WireControls();
}

void MainForm::Form_Load()
{
    state::AppState& s = m_state;
    platform::MainControls& c = m_controls;
    platform::FormTimers& timers = m_services.timers;
    platform::GraphControl& graph = m_services.GRAPH_CWGraph;

    // Graph extents and the reading's first fields.
    s.DataMax = 0.0;
    s.DataMin = 0.0;
    s.FunctionKind = 0;
    s.SkipNextPlot = false;
    s.GraphEmpty = true;
    s.RelativeCaptured = false;
    s.SignedCount = 4000.0;
    s.AwaitingAbsoluteReading = true;
    s.FunctionKind = 255;

    c.MAIN_FRM.SetCaption("Ventrix 1.0");

    // The three lists beside the graph.
    Fill(c.GRAPH_MODE_COMBO, { "Zoom", "Pan", "Cursor" });
    s.GraphMode = 0;
    c.GRAPH_MODE_COMBO.SetToolTip("Drag a box over the area to zoom in");
    Fill(c.AMPLITUDE_COMBO,
        { "AUTO Amplitude Scale", "4n", "40n", "400n", "4u", "40u", "400u", "4m", "40m", "0.4", "4", "40",
            "400", "4K", "40K", "400K", "4M", "40M" });
    s.AmplitudeRange = 0.0;
    Fill(c.SAMPLE_COMBO,
        { "AUTO Sample Scale", "10 samples", "20 samples", "50 samples", "100 samples", "200 samples",
            "500 samples", "1000 samples" });
    s.SampleScale = 0;
    s.SpecialWordTable = link::kSpecialWordTable;

    // Frame and reading state.
    s.HasNewFrame = false;
    s.FrameData.fill(0);
    s.FrameChecksum = 0;
    s.FrameResetMarker = 8;
    s.UnitMultiplier = 1.0;
    s.DecimalDivisor = 1;
    s.CountValue = 0.0;
    s.HasWord = false;
    s.ModeByte = 255;
    s.PlottedFunctionKind = 255;
    s.UnitLabel.clear();
    s.PlottedBaseUnit.clear();
    s.IsAcquiring = false;

    // Idle commands.
    c.CMD_PLAY.SetEnabled(true);
    c.CMD_STOP.SetEnabled(false);
    c.MENU_START.SetEnabled(true);
    c.MENU_STOP.SetEnabled(false);

    s.ComPortNumber = 1;
    m_services.MSComm1.SetSettings("4800,n,8,1");

    s.GraphFilePath.clear();
    s.GraphDialogPath.clear();
    s.TextFilePath.clear();
    s.TextDialogPath.clear();
    s.SampleIntervalMs = 1000.0;
    m_services.KNOB_ANALOG.SetPointerValue("Pointer-1", 0.0);
    s.GaugeNeedle = 0.0;
    s.GaugeTarget = 0.0;

    timers.UNLINK_TIMER.SetInterval(link::SerialLink::kUnlinkIntervalMs);
    timers.UNLINK_TIMER.SetEnabled(false);
    timers.ANALOG_TIMER.SetInterval(kAnalogIntervalMs);
    timers.ANALOG_TIMER.SetEnabled(false);
    timers.SAMPLE_TIMER.SetEnabled(false);
    timers.SAMPLE_TIMER.SetInterval(static_cast<int>(s.SampleIntervalMs));

    // An empty sample log.
    s.IsBufferFull = false;
    s.PageFill = 1;
    c.DATA_LOG_TXT.SetText("");
    s.LogPageText.clear();
    s.SwapPageCount = 0;
    c.CMD_PAGEUP.SetEnabled(false);
    c.CMD_PAGEDOWN.SetEnabled(false);
    s.GraphStartSlot = s.PageFill;
    s.GraphStartPage = s.SwapPageCount;

    // A blank LCD.
    c.NEG_LBL.SetVisible(false);
    for (platform::Label* label :
        { &c.DIGIT_LBL, &c.MODE_LBL, &c.BATTERY_LBL, &c.AUTO_LBL, &c.HOLD_LBL, &c.FUNCTION_LBL })
        label->SetCaption("");
    s.GraphMode = 0;

    // The empty graph: sample numbers 0..10, amplitude 0..40000000 as for a reading that is not
    // signed, no unit yet; no cursor readouts.
    graph.SetAxisCaption(platform::GraphAxis::YAxis1, "");
    graph.SetAxisMinimum(platform::GraphAxis::YAxis1, 0.0);
    graph.SetAxisMaximum(platform::GraphAxis::YAxis1, graph::Plotter::kEmptyGraphAmplitude);
    for (platform::Label* label : c.CursorLabels())
        label->SetEnabled(false);
    graph.SetAxisCaption(platform::GraphAxis::XAxis, "Sample No.");
    graph.SetAxisMinimum(platform::GraphAxis::XAxis, 0.0);
    graph.SetAxisMaximum(platform::GraphAxis::XAxis, 10.0);

    m_settings.LoadSettings();
    m_memory.UpdateMemoryGauge();
    c.picPRINT.SetVisible(false);
}

void MainForm::Form_Unload(int& cancel)
{
    if (m_ended)
        return;
    const auto answer = m_services.dialogs.MessageBox(
        "Are you sure to quit?", platform::MessageButtons::YesNo, platform::MessageIcon::Question, kTitle);
    if (answer != platform::MessageResult::Yes) {
        cancel = 1;
        return;
    }

    if (m_services.MSComm1.IsOpen())
        m_services.MSComm1.Close();
    m_link.StopTimers();
    m_settings.SaveSettings();
    m_ended = true;
    m_services.shell.EndProgram();
}

void MainForm::Quit()
{
    int cancel = 1;
    Form_Unload(cancel);
}

void MainForm::ShowAbout()
{
    m_services.dialogs.ShowAbout();
}

void MainForm::WireControls()
{
    platform::MainControls& c = m_controls;
    platform::FormTimers& timers = m_services.timers;

    c.CMD_PLAY.SetOnClick([this] { m_link.StartAcquisition(); });
    c.MENU_START.SetOnClick([this] { m_link.StartAcquisition(); });
    c.CMD_STOP.SetOnClick([this] { m_link.StopAcquisition(); });
    c.MENU_STOP.SetOnClick([this] { m_link.StopAcquisition(); });
    m_services.MSComm1.SetOnComm([this] {
        m_link.OnComm();
        if (m_link.AcceptedOffset() >= 0 && m_onFrameAccepted)
            m_onFrameAccepted();
    });
    timers.UNLINK_TIMER.SetOnTick([this] { m_link.UnlinkTimerTick(); });
    timers.ANALOG_TIMER.SetOnTick([this] { m_gauge.AnimateGauge(); });

    for (std::size_t i = 0; i < c.COM_ITEMS.size(); ++i)
        c.COM_ITEMS[i].SetOnClick([this, i] { m_settings.SelectComPort(static_cast<int>(i) + 1); });
    for (std::size_t i = 0; i < c.SEC_ITEMS.size(); ++i)
        c.SEC_ITEMS[i].SetOnClick([this, i] { m_settings.SelectSampleRate(kSampleRateSeconds[i]); });
    for (std::size_t i = 0; i < c.WIDTH_ITEMS.size(); ++i)
        c.WIDTH_ITEMS[i].SetOnClick([this, i] { m_appearance.SelectLineWidth(static_cast<int>(i)); });
    for (std::size_t i = 0; i < c.STYLE_ITEMS.size(); ++i)
        c.STYLE_ITEMS[i].SetOnClick([this, i] { m_appearance.SelectLineStyle(static_cast<int>(i)); });
    for (std::size_t i = 0; i < c.POINT_ITEMS.size(); ++i)
        c.POINT_ITEMS[i].SetOnClick([this, i] { m_appearance.SelectPointStyle(static_cast<int>(i)); });
    c.FILL.SetOnClick([this] { m_appearance.ToggleFill(); });
    c.Grid.SetOnClick([this] { m_appearance.ToggleGrid(); });

    c.AMPLITUDE_COMBO.SetOnSelect(
        [this] { m_plotter.SelectAmplitudeRange(m_controls.AMPLITUDE_COMBO.ListIndex()); });
    c.SAMPLE_COMBO.SetOnSelect([this] { m_plotter.SelectSampleScale(m_controls.SAMPLE_COMBO.ListIndex()); });
    c.GRAPH_MODE_COMBO.SetOnSelect(
        [this] { m_cursors.SelectGraphMode(m_controls.GRAPH_MODE_COMBO.ListIndex()); });
    c.AUTO_ZOOM.SetOnClick([this] { m_plotter.ZoomAllData(); });
    c.CMD_ZOOM.SetOnClick([this] { m_plotter.ZoomAllData(); });
    m_services.GRAPH_CWGraph.SetOnCursorChange(
        [this](int cursor, double x, double y) { m_cursors.CursorMoved(cursor, x, y); });
    m_link.SetTimeAxisSetUp([this] { m_plotter.SetUpTimeAxis(); });

    timers.SAMPLE_TIMER.SetOnTick([this] { m_logger.SampleTimerTick(); });
    timers.DEBUG_TIMER.SetOnTick([this] { m_simulator.DebugTimerTick(); });
    c.CMD_PAGEUP.SetOnClick([this] { m_dataLog.ShowPreviousPage(); });
    c.CMD_PAGEDOWN.SetOnClick([this] { m_dataLog.ShowNextPage(); });
    c.CMD_RESET.SetOnClick([this] { m_dataLog.ClearLog(); });
    c.CLEAR_LOG.SetOnClick([this] { m_dataLog.ClearLog(); });
    c.MENU_OPEN_GRAPH.SetOnClick([this] { m_files.Graph().OpenGraphFile(); });
    c.MENU_SAVE_GRAPH.SetOnClick([this] { m_files.Graph().SaveGraphFile(); });
    c.MENU_SAVE_GRAPG_AS.SetOnClick([this] { m_files.Graph().SaveGraphFileAs(); });
    c.Save.SetOnClick([this] { m_files.LogText().SaveLogText(); });
    c.CMD_SAVE.SetOnClick([this] { m_files.LogText().SaveLogText(); });
    c.Save_As.SetOnClick([this] { m_files.LogText().SaveLogTextAs(); });
    c.Excel.SetOnClick([this] { m_files.Export().ExportToSpreadsheet(); });
    c.CMD_EXCEL.SetOnClick([this] { m_files.Export().ExportToSpreadsheet(); });
    c.MENU_PRINT_GRAPH.SetOnClick([this] { m_files.Print().PrintGraph(); });
    c.CMD_PRINT.SetOnClick([this] { m_files.Print().PrintGraph(); });

    c.Exit.SetOnClick([this] { Quit(); });
    c.CMD_EXIT.SetOnClick([this] { Quit(); });
    c.HELP_CONTENT.SetOnClick([this] { m_services.shell.ShowHelp(platform::HelpView::Contents); });
    c.HELP_INDEX.SetOnClick([this] { m_services.shell.ShowHelp(platform::HelpView::Index); });
    c.HELP_ABOUT.SetOnClick([this] { ShowAbout(); });
}

} // namespace ventrix::app
