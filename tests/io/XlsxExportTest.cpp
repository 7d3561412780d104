#include "fakes/TestRig.h"
#include "files/FilesTestRig.h"
#include "files/SpreadsheetExport.h"
#include "io/XlsxSpreadsheet.h"
#include "log/SampleRecord.h"

#include <QProcess>
#include <gtest/gtest.h>

#include <fstream>

namespace ventrix::io {
namespace {

// Checks a workbook with openpyxl: the first sheet's header in bold, the standard width of 15
// characters (stored as 15.7109375, the file format's padding included) and every row against
// a tab-separated file of the rows expected. Prints "ok" or what differs.
const char kCheck[] = R"(
import sys, openpyxl
book = openpyxl.load_workbook(sys.argv[1])
sheet = book.worksheets[0]
expected = [line.rstrip('\n').split('\t') for line in open(sys.argv[2], encoding='utf-8')]
rows = [['' if v is None else v for v in row] for row in sheet.iter_rows(values_only=True)]
problems = []
if rows != expected:
    for n, (got, want) in enumerate(zip(rows, expected), 1):
        if got != want:
            problems.append('row %d: %r != %r' % (n, got, want))
            break
    problems.append('%d rows, %d expected' % (len(rows), len(expected)))
if not all(sheet.cell(1, c).font.b for c in (1, 2, 3)) or sheet.cell(2, 1).font.b:
    problems.append('bold header only')
width = sheet.column_dimensions['A']
if abs(width.width - 15.7109375) > 1e-6 or width.min != 1 or width.max != 16384:
    problems.append('width %r over %r..%r' % (width.width, width.min, width.max))
print('; '.join(problems) or 'ok')
)";

std::string CheckWorkbook(const std::filesystem::path& workbook, const std::filesystem::path& expected)
{
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"),
        { QStringLiteral("-c"), QString::fromUtf8(kCheck), QString::fromStdString(workbook.string()),
            QString::fromStdString(expected.string()) });
    python.waitForFinished(60000);
    return (python.readAllStandardOutput() + python.readAllStandardError()).trimmed().toStdString();
}

// The export of 1,001 samples read back by an independent reader: rows 2 to 1,002, the first
// 1,000 from the swap file; the workbook is handed over once, written.
TEST(XlsxExport, WorkbookReadsBackWithEveryRow)
{
    fakes::TestRig rig;
    const std::filesystem::path path = rig.paths.ProgramDirectory() / "export.xlsx";
    std::vector<std::pair<std::filesystem::path, bool>> handovers;
    XlsxSpreadsheet workbook([&] { return path; },
        [&](const std::filesystem::path& p, bool written) { handovers.emplace_back(p, written); });
    platform::Services services { rig.serial,
        { rig.unlinkTimer, rig.sampleTimer, rig.analogTimer, rig.debugTimer }, rig.clock, rig.dialogs,
        rig.graph, rig.knob, workbook, rig.printer, rig.paths, rig.shell, rig.graphPrint };
    testing::FillLog(rig.state, rig.paths.SwapFile(), 1001);
    files::SpreadsheetExport(rig.state, services).ExportToSpreadsheet();

    const std::filesystem::path expected = rig.paths.ProgramDirectory() / "expected.tsv";
    std::ofstream rows(expected);
    rows << "Time\tValue\tMode\n";
    for (int k = 0; k < 1001; ++k) {
        const state::SampleRecord record = testing::Sample(k);
        rows << log::FormatRecordTime(record) << '\t' << *log::FormatRecordValue(record, {}) << '\t'
             << log::FormatRecordUnit(record) << '\n';
    }
    rows.close();
    EXPECT_EQ(CheckWorkbook(path, expected), "ok");
    ASSERT_EQ(handovers.size(), 1u);
    EXPECT_EQ(handovers[0], std::make_pair(path, true));
    XlsxSpreadsheet nowhere([&] { return rig.paths.ProgramDirectory() / "no" / "such.xlsx"; });
    EXPECT_FALSE(nowhere.Create()); // found out before any row is written
}

} // namespace
} // namespace ventrix::io
