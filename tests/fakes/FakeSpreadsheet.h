#pragma once

#include "platform/Spreadsheet.h"

#include <map>
#include <string>
#include <vector>

namespace ventrix::fakes {

// A workbook held in memory that, like the real writer, takes rows in order only: a cell above
// the last row written fails. failCreate makes Create() fail; failAfterCells makes the cell
// write after that many succeed fail, as when the user closes the workbook during an export.
class FakeSpreadsheet : public platform::Spreadsheet {
public:
    bool Create() override { return !failCreate; }
    bool SetStandardWidth(double width) override
    {
        standardWidth = width;
        return true;
    }
    bool SetCellText(const std::string& cell, const std::string& text) override
    {
        const long long row = std::stoll(cell.substr(1));
        if ((failAfterCells >= 0 && static_cast<int>(cells.size()) >= failAfterCells) || row < m_lastRow)
            return false;
        m_lastRow = row;
        cells[cell] = text;
        return true;
    }
    bool SetBold(const std::string& range) override
    {
        boldRanges.push_back(range);
        return true;
    }
    void Release() override { ++releases; }

    bool failCreate = false;
    int failAfterCells = -1;
    int releases = 0;
    double standardWidth = 0.0;
    std::map<std::string, std::string> cells;
    std::vector<std::string> boldRanges;

private:
    long long m_lastRow = 0;
};

} // namespace ventrix::fakes
