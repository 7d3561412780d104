#pragma once

#include "files/FilesTestRig.h"
#include "files/SpreadsheetExport.h"
#include "io/XlsxSpreadsheet.h"

#include <QProcess>

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

// "True" when two workbooks hold the same sheet and formats, byte for byte; else what went wrong.
inline std::string CompareWorkbookSheets(const std::filesystem::path& a, const std::filesystem::path& b)
{
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"),
        { "-c",
            "import sys, zipfile\n"
            "a, b = (zipfile.ZipFile(p) for p in sys.argv[1:3])\n"
            "print(all(a.read(p) == b.read(p) for p in ['xl/worksheets/sheet1.xml', 'xl/styles.xml']))\n",
            QString::fromStdString(a.string()), QString::fromStdString(b.string()) });
    python.waitForFinished(10000);
    return (python.readAllStandardOutput().trimmed() + python.readAllStandardError()).toStdString();
}

} // namespace ventrix::testing
