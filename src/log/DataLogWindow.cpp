#include "log/DataLogWindow.h"

#include "link/SerialLink.h"
#include "log/SampleLogger.h"
#include "log/SampleRecord.h"
#include "log/SwapFile.h"

#include <utility>
#include <vector>

namespace ventrix::log {

namespace {
// One rebuilt line; a record the formatters cannot read (a word index past the table) gives no
// line, and the rest of the page still shows.
void AppendLine(std::string& text, const SampleRecord& record, const std::array<std::string, 15>& words)
{
    if (const auto line = FormatRecordLine(record, words, "    ", " "))
        text += *line + "\r\n";
}
} // namespace

DataLogWindow::DataLogWindow(state::AppState& state, platform::MainControls& controls,
    platform::Services& services, MemoryGauge& memory, link::SerialLink& link, SampleLogger& logger,
    std::function<void()> showEmptyGraph)
    : m_state(state)
    , m_controls(controls)
    , m_services(services)
    , m_memory(memory)
    , m_link(link)
    , m_logger(logger)
    , m_showEmptyGraph(std::move(showEmptyGraph))
{
}

void DataLogWindow::ShowLines(const std::string& text)
{
    m_controls.DATA_LOG_TXT.SetText(text);
    m_controls.DATA_LOG_TXT.SetCaret(text.size());
}

void DataLogWindow::ShowSwapPage(int page)
{
    std::vector<SampleRecord> records;
    SwapFile::ReadRecords(m_services.paths.SwapFile(), static_cast<long long>(page) * state::kPageSize,
        state::kPageSize, records);
    std::string text;
    text.reserve(records.size() * 32);
    for (const SampleRecord& record : records)
        AppendLine(text, record, m_state.SpecialWordTable);
    ShowLines(text);
}

void DataLogWindow::SetPageButtons()
{
    m_controls.CMD_PAGEUP.SetEnabled(m_state.ViewPage != 0);
    m_controls.CMD_PAGEDOWN.SetEnabled(m_state.ViewPage < m_state.SwapPageCount);
}

void DataLogWindow::ShowPreviousPage()
{
    m_services.shell.SetBusyPointer(true);
    if (m_state.ViewPage >= 1) {
        --m_state.ViewPage;
        m_controls.DATA_LOG_TXT.SetText("");
        ShowSwapPage(m_state.ViewPage);
    }
    SetPageButtons();
    m_services.shell.SetBusyPointer(false);
}

void DataLogWindow::ShowNextPage()
{
    state::AppState& s = m_state;
    m_services.shell.SetBusyPointer(true);
    if (s.ViewPage < s.SwapPageCount - 1) {
        ++s.ViewPage;
        m_controls.DATA_LOG_TXT.SetText("");
        ShowSwapPage(s.ViewPage);
    } else if (s.ViewPage == s.SwapPageCount - 1) {
        s.ViewPage = s.SwapPageCount;
        m_controls.DATA_LOG_TXT.SetText("");
        std::string text;
        for (int slot = 1; slot < s.PageFill; ++slot)
            AppendLine(text, s.PageRecords[static_cast<std::size_t>(slot - 1)], s.SpecialWordTable);
        ShowLines(text);
    }
    SetPageButtons();
    m_services.shell.SetBusyPointer(false);
}

void DataLogWindow::ClearLog()
{
    const auto answer = m_services.dialogs.MessageBox("Are you sure to clear all memory?",
        platform::MessageButtons::YesNo, platform::MessageIcon::Question, "Ventrix");
    if (answer != platform::MessageResult::Yes)
        return;
    state::AppState& s = m_state;
    platform::MainControls& c = m_controls;
    m_link.RequestExtremaReset();
    s.GraphEmpty = true;
    c.DIGIT_FRAME.SetVisible(false);
    s.PageFill = 1;
    s.SwapPageCount = 0;
    c.DATA_LOG_TXT.SetText("");
    s.LogPageText.clear();
    s.TextFilePath.clear();
    s.TextDialogPath.clear();
    c.MAIN_FRM.SetCaption("Ventrix 1.0");
    s.IsBufferFull = false;
    s.HasNewFrame = false;
    m_link.ResetFrameState();
    platform::SerialPort& port = m_services.MSComm1;
    port.SetInputLen(0);
    port.SetRThreshold(link::SerialLink::kFrameLength);
    port.SetSettings("4800,n,8,1");
    c.CMD_PAGEUP.SetEnabled(false);
    c.CMD_PAGEDOWN.SetEnabled(false);
    m_memory.UpdateMemoryGauge();
    m_services.GRAPH_CWGraph.ClearData();
    s.GraphStartSlot = s.PageFill;
    s.GraphStartPage = s.SwapPageCount;
    if (m_showEmptyGraph)
        m_showEmptyGraph();
    // The swap file stays as it is; ViewPage too, until the next sample sets it.
    m_logger.RestartJournal();
}

} // namespace ventrix::log
