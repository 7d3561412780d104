#pragma once

#include "platform/Spreadsheet.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

struct lxw_workbook;
struct lxw_worksheet;
struct lxw_format;

namespace ventrix::io {

// A spreadsheet as a new .xlsx file, written by libxlsxwriter in constant-memory mode: rows go to
// a temporary file one at a time with their strings inline, so memory stays flat however long
// the table. Rows must come in order (a cell above the row being written fails); the cells of the
// current row are held until the next row starts, so that bold can still be applied to them.
// Create() takes the file's path from `newPath` and fails when the file cannot be created;
// Release() writes the workbook out and passes its path and whether it was written to `handover`.
class XlsxSpreadsheet : public platform::Spreadsheet {
public:
    using PathSource = std::function<std::filesystem::path()>;
    using Handover = std::function<void(const std::filesystem::path& path, bool written)>;

    explicit XlsxSpreadsheet(PathSource newPath, Handover handover = {});
    ~XlsxSpreadsheet() override;
    XlsxSpreadsheet(const XlsxSpreadsheet&) = delete;
    XlsxSpreadsheet& operator=(const XlsxSpreadsheet&) = delete;

    bool Create() override;
    bool SetStandardWidth(double width) override;
    bool SetCellText(const std::string& cell, const std::string& text) override;
    bool SetBold(const std::string& range) override;
    void Release() override;

    // A cell address ("B12", column letters then a 1-based row) as 0-based row and column.
    struct CellIndex {
        std::uint32_t row;
        std::uint16_t column;
    };
    static bool ParseCell(const std::string& address, CellIndex& index);

private:
    struct PendingCell {
        std::uint16_t column;
        std::string text;
    };
    struct Range {
        CellIndex first;
        CellIndex last;
    };

    bool FlushRow();
    bool IsBold(std::uint32_t row, std::uint16_t column) const;
    bool Close();

    PathSource m_newPath;
    Handover m_handover;
    std::filesystem::path m_path;
    lxw_workbook* m_workbook = nullptr;
    lxw_worksheet* m_sheet = nullptr;
    lxw_format* m_bold = nullptr;
    std::uint32_t m_row = 0;
    std::vector<PendingCell> m_pending;
    std::vector<Range> m_boldRanges;
};

} // namespace ventrix::io
