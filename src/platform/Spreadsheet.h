#pragma once

#include <string>

namespace ventrix::platform {

// A new spreadsheet workbook with one worksheet, filled cell by cell ("A1", "B2" ...) in row
// order. Create() fails when no workbook can be made; every later call returns false on a failure
// (the user closed the workbook, the disk is full), which ends an export. Release() hands the
// workbook over to the user with whatever was written, also after a failure; it does nothing
// when Create() failed.
class Spreadsheet {
public:
    virtual ~Spreadsheet() = default;
    virtual bool Create() = 0;
    virtual bool SetStandardWidth(double width) = 0;
    virtual bool SetCellText(const std::string& cell, const std::string& text) = 0;
    virtual bool SetBold(const std::string& range) = 0;
    virtual void Release() = 0;
};

} // namespace ventrix::platform
