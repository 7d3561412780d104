#include "files/SpreadsheetTable.h"

#include "log/SampleRecord.h"

#include <optional>

namespace ventrix::files {

namespace {
constexpr double kStandardWidth = 15.0;
}

SpreadsheetTable::SpreadsheetTable(platform::Spreadsheet& sheet, const std::array<std::string, 15>& wordTable)
    : m_sheet(sheet)
    , m_wordTable(wordTable)
{
}

bool SpreadsheetTable::WriteHeader()
{
    return m_sheet.SetStandardWidth(kStandardWidth) && m_sheet.SetCellText("A1", "Time")
        && m_sheet.SetCellText("B1", "Value") && m_sheet.SetCellText("C1", "Mode")
        && m_sheet.SetBold("A1:C1");
}

bool SpreadsheetTable::Write(const state::SampleRecord& record)
{
    if (!Cell('A', log::FormatRecordTime(record)))
        return false;
    const std::optional<std::string> value = log::FormatRecordValue(record, m_wordTable);
    if (!value) {
        m_unformattable = true;
        return false;
    }
    if (!Cell('B', *value) || !Cell('C', log::FormatRecordUnit(record)))
        return false;
    ++m_row;
    return true;
}

bool SpreadsheetTable::Cell(char column, const std::string& text)
{
    return m_sheet.SetCellText(column + std::to_string(m_row), text);
}

} // namespace ventrix::files
