#pragma once

#include "platform/Spreadsheet.h"
#include "state/AppState.h"

#include <array>
#include <string>

namespace ventrix::files {

// The export's table on a new worksheet: standard column width 15, "Time", "Value" and "Mode"
// in row 1 in bold, then one row per record from row 2 on with its time, value and unit texts,
// each cell written on its own. The export and the command-line converter both fill their
// workbooks through it. Does not create or release the workbook.
class SpreadsheetTable {
public:
    SpreadsheetTable(platform::Spreadsheet& sheet, const std::array<std::string, 15>& wordTable);

    bool WriteHeader();
    // The record's row. A value that cannot be formatted (a word index beyond the word table)
    // stops it after the time cell, as does a failing cell write: false.
    bool Write(const state::SampleRecord& record);
    bool Unformattable() const { return m_unformattable; }

private:
    bool Cell(char column, const std::string& text);

    platform::Spreadsheet& m_sheet;
    const std::array<std::string, 15>& m_wordTable;
    long long m_row = 2;
    bool m_unformattable = false;
};

} // namespace ventrix::files
