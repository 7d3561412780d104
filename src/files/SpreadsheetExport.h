#pragma once

#include "platform/Services.h"
#include "state/AppState.h"

namespace ventrix::files {

// "Export to Excel": the whole log, oldest first, into a new workbook of the spreadsheet service
// (see SpreadsheetTable), which is then handed over to the user. When no workbook can be made the
// export ends silently; when a cell cannot be written or a record cannot be formatted it stops
// there, silently, and the user gets the workbook as far as it was written.
class SpreadsheetExport {
public:
    SpreadsheetExport(state::AppState& state, platform::Services& services);

    void ExportToSpreadsheet();

private:
    void Fill();

    state::AppState& m_state;
    platform::Services& m_services;
};

} // namespace ventrix::files
