#pragma once

#include <string>

namespace ventrix::platform {

// A new spreadsheet workbook with one worksheet, filled cell by cell ("A1", "B2" ...). Create()
// fails when no workbook can be made; a failed cell write ends the export. Finish() hands the
// workbook over to the user.
class Spreadsheet {
public:
    virtual ~Spreadsheet() = default;
    virtual bool Create() = 0;
    virtual void SetStandardWidth(double width) = 0;
    virtual bool SetCellText(const std::string& cell, const std::string& text) = 0;
    virtual void SetBold(const std::string& range) = 0;
    virtual void Finish() = 0;
};

} // namespace ventrix::platform
