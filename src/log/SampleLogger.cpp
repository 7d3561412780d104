#include "log/SampleLogger.h"

#include "display/DisplayDigits.h"
#include "link/SerialLink.h"
#include "log/SampleRecord.h"
#include "log/SwapFile.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ventrix::log {

namespace {
constexpr double kSecondsPerDay = 86400.0;
constexpr double kPhaseLimitSeconds = 0.3;
constexpr double kPhaseCorrectionMs = 200.0;
constexpr double kMaxLagCorrectionMs = 500.0;
constexpr double kLagLimit = 4.0 / kSecondsPerDay; // 4 s as a fraction of a day
} // namespace

SampleLogger::SampleLogger(state::AppState& state, platform::MainControls& controls,
    platform::Services& services, MemoryGauge& memory, link::SerialLink& link,
    std::function<void()> plotSample)
    : m_state(state)
    , m_controls(controls)
    , m_services(services)
    , m_memory(memory)
    , m_link(link)
    , m_plotSample(std::move(plotSample))
    , m_journal(services.paths.JournalFile())
{
}

std::string SampleLogger::LiveLogLine(const state::AppState& s)
{
    std::string line = FormatTimeOfDay(s.SampleTime) + "    ";
    if (!s.IsPositive)
        line += "-";
    line += s.HasWord ? s.DisplayWord : display::FormatDisplayDigits(s);
    return line + " " + s.UnitLabel;
}

void SampleLogger::SampleTimerTick()
{
    state::AppState& s = m_state;
    const platform::Clock& clock = m_services.clock;
    s.SampleTime = clock.TimeOfDay();
    s.SampleTimeText = FormatTimeOfDay(s.SampleTime);
    const double seconds = clock.SecondsSinceMidnight();
    const double phase = seconds - std::floor(seconds);
    if (s.FirstSampleTickPending) {
        s.FirstSampleTickPending = false;
        s.ExpectedSampleTime = clock.TimeOfDay();
        s.ExpectedTimeText = FormatTimeOfDay(s.ExpectedSampleTime);
    }
    if (!s.HasNewFrame || s.IsBufferFull)
        return;
    s.HasNewFrame = false;

    double correctionMs = 0.0;
    if (phase > kPhaseLimitSeconds) {
        correctionMs = kPhaseCorrectionMs;
        s.IntervalCorrected = true;
    }
    if (s.ExpectedTimeText != s.SampleTimeText) {
        const double lag = s.SampleTime - s.ExpectedSampleTime;
        if (lag < kLagLimit && s.SampleTime > s.ExpectedSampleTime) {
            correctionMs = std::min(lag * kSecondsPerDay * 1000.0, kMaxLagCorrectionMs);
            s.IntervalCorrected = true;
        }
        if (lag < kLagLimit)
            s.SampleTime = s.ExpectedSampleTime; // stamped with the due time
        else
            s.ExpectedSampleTime = s.SampleTime;
    }
    s.ExpectedSampleTime += s.SampleIntervalMs / 1000.0 / kSecondsPerDay;
    if (s.ExpectedSampleTime > 1.0)
        s.ExpectedSampleTime -= 1.0; // past midnight
    s.ExpectedTimeText = FormatTimeOfDay(s.ExpectedSampleTime);

    if (s.IntervalCorrected) {
        platform::Timer& timer = m_services.timers.SAMPLE_TIMER;
        timer.SetInterval(static_cast<int>(std::lround(s.SampleIntervalMs - correctionMs)));
        timer.SetEnabled(true);
        if (correctionMs == 0.0)
            s.IntervalCorrected = false; // the next tick runs the full interval again
    }

    AppendSample();
    if (!s.AwaitingAbsoluteReading && m_plotSample)
        m_plotSample();
}

void SampleLogger::AppendSample()
{
    state::AppState& s = m_state;
    if (s.AwaitingAbsoluteReading || s.FunctionKind >= 15)
        return;
    const std::string line = LiveLogLine(s);
    platform::TextBox& window = m_controls.DATA_LOG_TXT;
    if (s.PageFill == 1) {
        window.SetText("");
        s.LogPageText.clear();
    }
    s.ViewPage = s.SwapPageCount;
    m_controls.CMD_PAGEUP.SetEnabled(s.SwapPageCount != 0);
    m_controls.CMD_PAGEDOWN.SetEnabled(false);
    s.LogPageText += line + "\r\n";
    window.SetText(s.LogPageText);
    window.SetCaret(s.LogPageText.size());
    StoreSampleRecord();
    m_memory.UpdateMemoryGauge();
}

void SampleLogger::StoreSampleRecord()
{
    state::AppState& s = m_state;
    const SampleRecord record = EncodeSampleRecord(s, ParseRecordTime(FormatTimeOfDay(s.SampleTime)));
    const int slot = std::clamp<int>(s.PageFill, 1, state::kPageSize);
    s.PageRecords[static_cast<std::size_t>(slot - 1)] = record;
    s.PageFill = static_cast<std::int16_t>(slot + 1);
    if (!m_journalStarted)
        m_journalStarted = m_journal.StartPage(s.SwapPageCount);
    m_journal.Append(record);

    if (s.PageFill > state::kPageSize) {
        s.PageFill = 1;
        // A failed write is ignored: the page is counted and logging goes on.
        const auto swapFile = m_services.paths.SwapFile();
        SwapFile::WritePage(swapFile, s.SwapPageCount, s.PageRecords);
        ++s.SwapPageCount;
        m_journal.StartPage(s.SwapPageCount, swapFile);
    }
    if (s.SwapPageCount >= state::kMaxSwapPages)
        StopOnFullLog();
}

void SampleLogger::StopOnFullLog()
{
    m_link.SetCommands(false);
    platform::SerialPort& port = m_services.MSComm1;
    if (port.IsOpen())
        port.Close();
    m_link.ResetFrameState();
    platform::FormTimers& timers = m_services.timers;
    timers.UNLINK_TIMER.SetEnabled(false);
    timers.ANALOG_TIMER.SetEnabled(false);
    timers.SAMPLE_TIMER.SetEnabled(false);
    m_state.IsBufferFull = true;
    m_controls.MEMORY_BAR.SetValue(0.0);
    m_services.dialogs.MessageBox("Buffer Full! Please reset buffer before continue.",
        platform::MessageButtons::Ok, platform::MessageIcon::None, "Ventrix");
    m_link.SetOptionMenus(true);
}

void SampleLogger::RestartJournal()
{
    m_journalStarted = m_journal.StartPage(0);
}

} // namespace ventrix::log
