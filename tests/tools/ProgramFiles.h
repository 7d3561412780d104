#pragma once

#include "files/FilesTestRig.h"
#include "files/SpreadsheetExport.h"
#include "io/XlsxSpreadsheet.h"

#include <string>

namespace ventrix::testing {

// What the program's own Save As and Export to Excel write for the log in `t`: the text file and
// the workbook, under the given names in its directory.
inline void SaveAndExportAsTheProgramDoes(
    FilesTestRig& t, const std::string& text, const std::string& workbook)
{
    t.rig.dialogs.fileAnswers.push_back(t.File(text).string());
    t.c.Save_As.Click();
    io::XlsxSpreadsheet sheet([&] { return t.File(workbook); });
    const platform::Services& s = t.rig.services;
    platform::Services services { s.MSComm1, s.timers, s.clock, s.dialogs, s.GRAPH_CWGraph, s.KNOB_ANALOG,
        sheet, s.printer, s.paths, s.shell, s.graphPrint };
    files::SpreadsheetExport(t.s, services).ExportToSpreadsheet();
}

} // namespace ventrix::testing
