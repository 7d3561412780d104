#include "files/LogTextFile.h"

#include "files/LogProgress.h"
#include "files/RecordTextWriter.h"
#include "log/SwapFile.h"

#include <fstream>

namespace ventrix::files {

namespace {
constexpr int kSaveAsFlags = 2054; // ask before overwriting, hide read-only, the path must exist
}

LogTextFile::LogTextFile(state::AppState& state, platform::MainControls& controls,
    platform::Services& services, platform::CommonDialog& fileBox)
    : m_state(state)
    , m_controls(controls)
    , m_services(services)
    , m_fileBox(fileBox)
{
}

void LogTextFile::SaveLogText()
{
    if (m_state.TextDialogPath.empty() || m_state.TextFilePath.empty())
        SaveLogTextAs();
    else
        WriteLogText();
}

void LogTextFile::SaveLogTextAs()
{
    platform::FileDialogRequest& box = m_fileBox.settings;
    box.title = "Save As";
    box.filter = "*.txt|*.txt";
    box.fileName.clear();
    box.initialDirectory = m_state.TextDialogPath.empty() ? m_services.paths.ProgramDirectory().string()
                                                          : m_state.TextDialogPath;
    box.flags = kSaveAsFlags;
    m_fileBox.ShowSave();
    const std::string chosen = box.fileName;
    if (chosen.empty())
        return;
    m_state.TextDialogPath = chosen;
    m_state.TextFilePath = chosen;
    WriteLogText();
}

void LogTextFile::WriteLogText()
{
    m_services.shell.SetBusyPointer(true);
    if (Write())
        m_controls.MAIN_FRM.SetCaption(m_state.TextFilePath + " - Ventrix 1.0");
    m_services.shell.SetBusyPointer(false);
}

bool LogTextFile::Write()
{
    try {
        std::ofstream out(m_state.TextFilePath, std::ios::binary | std::ios::trunc);
        if (!out.is_open())
            return false;
        RecordTextWriter writer(out, m_state.SpecialWordTable);
        LogProgress progress(m_services.shell, m_state);
        const bool complete = log::SwapFile::ForEachSample(m_services.paths.SwapFile(), m_state.SwapPageCount,
            m_state.PageRecords, m_state.PageFill, [&](const state::SampleRecord& record) {
                progress.Step();
                return writer.Write(record);
            });
        if (!complete)
            return false;
        out.close();
        return !out.fail();
    } catch (...) {
        return false;
    }
}

} // namespace ventrix::files
