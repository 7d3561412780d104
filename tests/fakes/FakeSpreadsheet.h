#pragma once

#include "platform/Spreadsheet.h"

#include <map>
#include <string>
#include <vector>

namespace ventrix::fakes {

// A workbook held in memory. failCreate makes Create() fail; failAfterCells makes the cell write
// after that many succeed fail, as when the user closes the spreadsheet during an export.
class FakeSpreadsheet : public platform::Spreadsheet {
public:
    bool Create() override { return created = !failCreate; }
    void SetStandardWidth(double width) override { standardWidth = width; }
    bool SetCellText(const std::string& cell, const std::string& text) override
    {
        if (failAfterCells >= 0 && static_cast<int>(cells.size()) >= failAfterCells)
            return false;
        cells[cell] = text;
        return true;
    }
    void SetBold(const std::string& range) override { boldRanges.push_back(range); }
    void Finish() override { finished = true; }

    bool failCreate = false;
    int failAfterCells = -1;
    bool created = false;
    bool finished = false;
    double standardWidth = 0.0;
    std::map<std::string, std::string> cells;
    std::vector<std::string> boldRanges;
};

} // namespace ventrix::fakes
