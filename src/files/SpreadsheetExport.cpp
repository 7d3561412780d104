#include "files/SpreadsheetExport.h"

#include "files/LogProgress.h"
#include "files/SpreadsheetTable.h"
#include "log/SwapFile.h"

namespace ventrix::files {

SpreadsheetExport::SpreadsheetExport(state::AppState& state, platform::Services& services)
    : m_state(state)
    , m_services(services)
{
}

void SpreadsheetExport::ExportToSpreadsheet()
{
    platform::Spreadsheet& sheet = m_services.spreadsheet;
    m_services.shell.SetBusyPointer(true);
    if (sheet.Create()) {
        Fill();
        sheet.Release();
    }
    m_services.shell.SetBusyPointer(false);
}

void SpreadsheetExport::Fill()
{
    try {
        SpreadsheetTable table(m_services.spreadsheet, m_state.SpecialWordTable);
        if (!table.WriteHeader())
            return;
        LogProgress progress(m_services.shell, m_state);
        log::SwapFile::ForEachSample(m_services.paths.SwapFile(), m_state.SwapPageCount, m_state.PageRecords,
            m_state.PageFill, [&](const state::SampleRecord& record) {
                progress.Step();
                return table.Write(record);
            });
    } catch (...) {
        // Ends the export as a failed cell write does; the workbook keeps what it has.
    }
}

} // namespace ventrix::files
