#pragma once

#include "platform/Spreadsheet.h"

namespace ventrix::platform {

// Stands in where there is no spreadsheet writer (the capture replay): no workbook can be made,
// so every export ends at Create() on its normal failure path. Writes nothing.
class UnavailableSpreadsheet : public Spreadsheet {
public:
    bool Create() override { return false; }
    bool SetStandardWidth(double) override { return false; }
    bool SetCellText(const std::string&, const std::string&) override { return false; }
    bool SetBold(const std::string&) override { return false; }
    void Release() override { }
};

} // namespace ventrix::platform
