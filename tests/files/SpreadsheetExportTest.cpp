#include "files/FilesTestRig.h"
#include "log/SampleRecord.h"

#include <gtest/gtest.h>

namespace ventrix::files {
namespace {

using testing::FilesTestRig;
using testing::Sample;

TEST(SpreadsheetExport, FillsTheBoldHeaderThenOneRowPerSampleOldestFirst)
{
    for (int count : { 0, 1001 }) {
        FilesTestRig t;
        t.Fill(count);
        t.c.CMD_EXCEL.Click();
        const fakes::FakeSpreadsheet& sheet = t.rig.spreadsheet;
        EXPECT_EQ(sheet.standardWidth, 15.0);
        EXPECT_EQ(sheet.boldRanges, (std::vector<std::string> { "A1:C1" }));
        EXPECT_EQ(sheet.cells.at("A1") + sheet.cells.at("B1") + sheet.cells.at("C1"), "TimeValueMode");
        ASSERT_EQ(sheet.cells.size(), 3u * static_cast<std::size_t>(count + 1)) << count;
        for (int k = 0; k < count; ++k) {
            const std::string row = std::to_string(k + 2);
            EXPECT_EQ(sheet.cells.at("A" + row), log::FormatRecordTime(Sample(k))) << row;
            EXPECT_EQ(sheet.cells.at("B" + row), *log::FormatRecordValue(Sample(k), {})) << row;
            EXPECT_EQ(sheet.cells.at("C" + row), "mV") << row;
        }
        EXPECT_EQ(sheet.releases, 1);
        EXPECT_TRUE(t.PointerRestored());
    }
}

// No workbook: nothing more happens. A failing cell or a record that cannot be formatted stops
// the export there; the workbook keeps what it has and is still handed over. No message.
TEST(SpreadsheetExport, FailuresStopSilently)
{
    struct Case {
        const char* name;
        bool failCreate;
        int failAfterCells;
        int badSample;
        std::size_t cells;
        int releases;
    };
    const Case cases[] = {
        { "no workbook", true, -1, -1, 0, 0 },
        { "closed by the user", false, 10, -1, 10, 1 },
        { "word index beyond the table", false, -1, 1000, 3 + 3000 + 1, 1 },
    };
    for (const Case& c : cases) {
        FilesTestRig t;
        t.Fill(1001);
        t.rig.spreadsheet.failCreate = c.failCreate;
        t.rig.spreadsheet.failAfterCells = c.failAfterCells;
        if (c.badSample >= 0)
            t.s.PageRecords[0] = { 1, 2, 3, 15, 0, 15, 0, 0 };
        t.c.Excel.Click();
        EXPECT_EQ(t.rig.spreadsheet.cells.size(), c.cells) << c.name;
        EXPECT_EQ(t.rig.spreadsheet.releases, c.releases) << c.name;
        EXPECT_TRUE(t.PointerRestored()) << c.name;
        EXPECT_TRUE(t.rig.dialogs.boxes.empty()) << c.name;
    }
}

} // namespace
} // namespace ventrix::files
