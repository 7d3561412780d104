#include "files/FilesTestRig.h"
#include "log/SampleRecord.h"

#include <gtest/gtest.h>

namespace ventrix::files {
namespace {

using testing::FilesTestRig;
using testing::Sample;

// The bold header, then one row per sample, oldest first. No workbook: nothing more happens. A
// failing cell or a record that cannot be formatted stops the export there; the workbook keeps
// what it has and is still handed over. Never a message.
TEST(SpreadsheetExport, FillsOneRowPerSampleAndStopsSilently)
{
    struct Case {
        const char* name;
        int samples;
        bool failCreate;
        int failAfterCells;
        bool badLast;
        std::size_t cells;
    };
    const Case cases[] = {
        { "empty log", 0, false, -1, false, 3 },
        { "1,001 samples", 1001, false, -1, false, 3 * 1002 },
        { "no workbook", 1001, true, -1, false, 0 },
        { "closed by the user", 1001, false, 10, false, 10 },
        { "word index beyond the table", 1001, false, -1, true, 3 * 1001 + 1 },
    };
    for (const Case& c : cases) {
        FilesTestRig t;
        t.Fill(c.samples);
        fakes::FakeSpreadsheet& sheet = t.rig.spreadsheet;
        sheet.failCreate = c.failCreate;
        sheet.failAfterCells = c.failAfterCells;
        if (c.badLast)
            t.s.PageRecords[0] = { 1, 2, 3, 15, 0, 15, 0, 0 };
        t.c.CMD_EXCEL.Click();
        EXPECT_EQ(sheet.cells.size(), c.cells) << c.name;
        EXPECT_EQ(sheet.releases, c.failCreate ? 0 : 1) << c.name;
        EXPECT_TRUE(t.PointerRestored()) << c.name;
        EXPECT_TRUE(t.rig.dialogs.boxes.empty()) << c.name;
        if (c.failCreate || c.failAfterCells >= 0)
            continue;
        EXPECT_EQ(sheet.standardWidth, 15.0);
        EXPECT_EQ(sheet.boldRanges, (std::vector<std::string> { "A1:C1" }));
        EXPECT_EQ(sheet.cells.at("A1") + sheet.cells.at("B1") + sheet.cells.at("C1"), "TimeValueMode");
        for (int k : { 0, 999, 1000 }) { // first and last from the swap file, the one in memory
            if (k >= c.samples || (c.badLast && k == 1000))
                continue;
            const std::string row = std::to_string(k + 2);
            EXPECT_EQ(sheet.cells.at("A" + row) + sheet.cells.at("B" + row) + sheet.cells.at("C" + row),
                log::FormatRecordTime(Sample(k)) + *log::FormatRecordValue(Sample(k), {}) + "mV");
        }
    }
}

} // namespace
} // namespace ventrix::files
