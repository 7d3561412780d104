#pragma once

#include "platform/Spreadsheet.h"

namespace ventrix::platform {

// Stands in where there is no spreadsheet writer (the program until it has one, the capture
// replay): no workbook can be made, so every export ends at Create() on its normal failure
// path. Writes nothing.
class UnavailableSpreadsheet : public Spreadsheet {
public:
    bool Create() override { return false; }
    void SetStandardWidth(double) override { }
    bool SetCellText(const std::string&, const std::string&) override { return false; }
    void SetBold(const std::string&) override { }
    void Finish() override { }
};

} // namespace ventrix::platform
