#include "link/SerialLink.h"

#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "link/FrameDecoder.h"
#include "link/FrameValidator.h"

#include <cstdint>
#include <utility>

namespace ventrix::link {

namespace {
constexpr const char* kLineSettings = "4800,n,8,1";
constexpr int kAnalogIntervalMs = 200;
constexpr int kFirstSampleIntervalMs = 200;
constexpr int kDebugIntervalMs = 200;
constexpr int kMaxAlignmentOffset = 3;
constexpr const char* kBoxTitle = "Ventrix";
constexpr const char* kWarningTitle = "Warning";
} // namespace

SerialLink::SerialLink(state::AppState& state, platform::MainControls& controls, platform::Services& services,
    display::VirtualLcd& lcd, display::AnalogGauge& gauge, RefusalHandler onRefusal)
    : m_state(state)
    , m_controls(controls)
    , m_services(services)
    , m_lcd(lcd)
    , m_gauge(gauge)
    , m_onRefusal(std::move(onRefusal))
{
}

void SerialLink::SetCommands(bool acquiring)
{
    m_state.IsAcquiring = acquiring;
    m_controls.CMD_PLAY.SetEnabled(!acquiring);
    m_controls.CMD_STOP.SetEnabled(acquiring);
    m_controls.MENU_START.SetEnabled(!acquiring);
    m_controls.MENU_STOP.SetEnabled(acquiring);
}

void SerialLink::SetOptionMenus(bool enabled)
{
    m_controls.COM.SetEnabled(enabled);
    m_controls.RATE.SetEnabled(enabled);
}

void SerialLink::StopTimers()
{
    platform::FormTimers& timers = m_services.timers;
    timers.UNLINK_TIMER.SetInterval(kUnlinkIntervalMs);
    timers.UNLINK_TIMER.SetEnabled(false);
    timers.ANALOG_TIMER.SetEnabled(false);
    timers.SAMPLE_TIMER.SetEnabled(false);
}

void SerialLink::StartAcquisition()
{
    RequestExtremaReset();
    if (m_state.IsAcquiring)
        return;

    platform::SerialPort& port = m_services.MSComm1;
    if (m_state.IsBufferFull) {
        SetCommands(false);
        if (port.IsOpen())
            port.Close();
        StopTimers();
        m_services.dialogs.MessageBox("Buffer Full! Please reset buffer before continue.",
            platform::MessageButtons::Ok, platform::MessageIcon::None, kBoxTitle);
        SetOptionMenus(true);
        return;
    }

    SetCommands(true);
    m_state.HasNewFrame = false;
    ResetFrameState();

    port.SetInputLen(0);
    port.SetRThreshold(kFrameLength);
    port.DiscardInput();
    port.SetCommPort(m_state.ComPortNumber);
    port.SetSettings(kLineSettings);
    if (!port.IsOpen() && !port.Open()) {
        // The port cannot be opened: back to Idle; the timers were not started.
        SetCommands(false);
        m_services.dialogs.MessageBox("Cannot open COM " + std::to_string(m_state.ComPortNumber) + "!",
            platform::MessageButtons::Ok, platform::MessageIcon::Exclamation, kBoxTitle);
        return;
    }

    platform::FormTimers& timers = m_services.timers;
    timers.UNLINK_TIMER.SetInterval(kUnlinkIntervalMs);
    timers.UNLINK_TIMER.SetEnabled(true);
    timers.ANALOG_TIMER.SetEnabled(false);
    timers.ANALOG_TIMER.SetInterval(kAnalogIntervalMs);
    timers.SAMPLE_TIMER.SetInterval(kFirstSampleIntervalMs);
    timers.SAMPLE_TIMER.SetEnabled(true);

    m_state.IntervalCorrected = true;
    m_state.FirstSampleTickPending = true;
    m_services.GRAPH_CWGraph.ClearData();
    m_state.GraphStartSlot = m_state.PageFill;
    m_state.GraphStartPage = m_state.SwapPageCount;
    if (m_state.SampleScale != 0 && m_setUpTimeAxis)
        m_setUpTimeAxis();

    // Port and sampling rate must not change while acquiring.
    SetOptionMenus(false);
}

void SerialLink::StopAcquisition()
{
    platform::FormTimers& timers = m_services.timers;
    timers.DEBUG_TIMER.SetInterval(kDebugIntervalMs);
    timers.DEBUG_TIMER.SetEnabled(false);

    SetCommands(false);
    platform::SerialPort& port = m_services.MSComm1;
    if (port.IsOpen()) {
        port.Close();
        port.DiscardInput();
    }
    StopTimers();
    SetOptionMenus(true);

    // Until a frame without relative mode arrives, nothing is logged and a relative frame stops
    // acquisition again.
    m_state.AwaitingAbsoluteReading = true;
}

void SerialLink::OnComm()
{
    m_acceptedOffset = -1;
    platform::SerialPort& port = m_services.MSComm1;
    if (port.CommEvent() != platform::SerialPort::kEvReceive)
        return; // line errors and modem events are ignored; their characters stay unread
    const std::string received = port.ReadInput();
    if (m_state.IsAcquiring)
        AssembleFrame(received);
}

void SerialLink::AssembleFrame(const std::string& received)
{
    // Any receive event, valid or not, restarts the link supervision.
    RestartSupervision();

    // The stream has no start marker: try the first few alignments for a frame whose checksum
    // and LCD bytes fit.
    m_acceptedOffset = -1;
    const int length = static_cast<int>(received.size());
    for (int p = 0; p <= kMaxAlignmentOffset && p + kFrameLength <= length; ++p) {
        const std::uint8_t computed = ComputeChecksum(received, p);
        m_state.FrameChecksum = static_cast<std::uint8_t>(received[static_cast<std::size_t>(p + 8)]);
        if (computed == m_state.FrameChecksum && ValidateFrame(received, p)) {
            m_state.ModeByte = static_cast<std::uint8_t>(received[static_cast<std::size_t>(p)]);
            for (int k = 2; k <= 8; ++k) // FrameData is reversed: element 0 holds byte 8
                m_state.FrameData[static_cast<std::size_t>(8 - k)]
                    = static_cast<std::uint8_t>(received[static_cast<std::size_t>(p + k - 1)]);
            m_acceptedOffset = p;
            break;
        }
    }

    platform::SerialPort& port = m_services.MSComm1;
    if (m_acceptedOffset >= 0) {
        m_state.HasNewFrame = true;
        if (DecodeFrame(m_state))
            RefuseRelativeStart();
        m_lcd.RefreshVirtualLcd();
        m_gauge.UpdateGaugeTarget();
        port.DiscardInput();
        if (port.RThreshold() != kFrameLength) {
            // The intermediate value is written although the next line replaces it at once.
            port.SetRThreshold(2 * kFrameLength - length % kFrameLength);
            port.SetRThreshold(kFrameLength);
        }
    } else {
        // Out of step: make the next event end one byte later or earlier, so that the event
        // boundaries walk back onto the frame boundaries within a few events.
        port.DiscardInput();
        port.SetRThreshold(port.RThreshold() == kFrameLength ? kFrameLength + 1 : kFrameLength);
    }
}

void SerialLink::RefuseRelativeStart()
{
    if (m_onRefusal) {
        m_onRefusal();
        return;
    }
    StopAcquisition();
    m_services.dialogs.MessageBox("Please disable relative mode before acquiring data",
        platform::MessageButtons::Ok, platform::MessageIcon::Exclamation, kWarningTitle);
}

void SerialLink::UnlinkTimerTick()
{
    const platform::MessageResult answer
        = m_services.dialogs.MessageBox("No data for more than 10sec, Continue?",
            platform::MessageButtons::YesNo, platform::MessageIcon::Question, kWarningTitle);
    if (answer != platform::MessageResult::No) {
        // Only an explicit No stops. The timer went on counting while the box was open: the next
        // question comes 15 s after the answer, not at the next beat of the old countdown.
        RestartSupervision();
        return;
    }

    // Unlike StopAcquisition: the receive buffer, the relative-mode guard and the simulator
    // timer are left alone.
    SetCommands(false);
    platform::SerialPort& port = m_services.MSComm1;
    if (port.IsOpen())
        port.Close();
    ResetFrameState();
    StopTimers();
    SetOptionMenus(true);
}

void SerialLink::RestartSupervision()
{
    platform::Timer& unlink = m_services.timers.UNLINK_TIMER;
    unlink.SetEnabled(false);
    unlink.SetInterval(kUnlinkIntervalMs);
    unlink.SetEnabled(true);
}

void SerialLink::RequestExtremaReset()
{
    m_state.GraphRestartPending = true;
}

void SerialLink::ResetFrameState()
{
    m_state.FrameResetMarker = 8;
    m_state.FrameData.fill(0);
    m_state.FrameChecksum = 0;
}

} // namespace ventrix::link
