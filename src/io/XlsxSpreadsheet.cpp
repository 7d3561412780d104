#include "io/XlsxSpreadsheet.h"

#include <xlsxwriter.h>

#include <fstream>
#include <system_error>
#include <utility>

namespace ventrix::io {

XlsxSpreadsheet::XlsxSpreadsheet(PathSource newPath, Handover handover)
    : m_newPath(std::move(newPath))
    , m_handover(std::move(handover))
{
}

XlsxSpreadsheet::~XlsxSpreadsheet()
{
    Close();
}

bool XlsxSpreadsheet::Create()
{
    Close();
    m_path = m_newPath ? m_newPath() : std::filesystem::path();
    // The workbook is only written when it is closed: find out now whether the file can be made.
    if (m_path.empty() || !std::ofstream(m_path, std::ios::binary | std::ios::trunc))
        return false;
    lxw_workbook_options options {};
    options.constant_memory = LXW_TRUE;
    m_workbook = workbook_new_opt(m_path.string().c_str(), &options);
    if (m_workbook == nullptr)
        return false;
    m_sheet = workbook_add_worksheet(m_workbook, nullptr);
    m_bold = workbook_add_format(m_workbook);
    if (m_sheet == nullptr || m_bold == nullptr) {
        Close();
        return false;
    }
    format_set_bold(m_bold);
    m_row = 0;
    m_pending.clear();
    m_boldRanges.clear();
    return true;
}

bool XlsxSpreadsheet::SetStandardWidth(double width)
{
    // Every column of the sheet, as a standard width would.
    return m_sheet != nullptr
        && worksheet_set_column(m_sheet, 0, LXW_COL_MAX - 1, width, nullptr) == LXW_NO_ERROR;
}

bool XlsxSpreadsheet::SetCellText(const std::string& cell, const std::string& text)
{
    CellIndex index {};
    if (m_sheet == nullptr || !ParseCell(cell, index) || index.row < m_row)
        return false;
    if (index.row > m_row) {
        if (!FlushRow())
            return false;
        m_row = index.row;
    }
    m_pending.push_back({ index.column, text });
    return true;
}

bool XlsxSpreadsheet::SetBold(const std::string& range)
{
    const std::size_t colon = range.find(':');
    Range bold {};
    if (m_sheet == nullptr || !ParseCell(range.substr(0, colon), bold.first)
        || !ParseCell(colon == std::string::npos ? range : range.substr(colon + 1), bold.last))
        return false;
    m_boldRanges.push_back(bold);
    return true;
}

void XlsxSpreadsheet::Release()
{
    if (m_workbook == nullptr)
        return;
    const bool rowWritten = FlushRow();
    const bool written = Close() && rowWritten;
    if (m_handover)
        m_handover(m_path, written);
}

bool XlsxSpreadsheet::FlushRow()
{
    for (const PendingCell& cell : m_pending) {
        lxw_format* format = IsBold(m_row, cell.column) ? m_bold : nullptr;
        if (worksheet_write_string(m_sheet, m_row, cell.column, cell.text.c_str(), format) != LXW_NO_ERROR)
            return false;
    }
    m_pending.clear();
    return true;
}

bool XlsxSpreadsheet::IsBold(std::uint32_t row, std::uint16_t column) const
{
    for (const Range& range : m_boldRanges) {
        if (row >= range.first.row && row <= range.last.row && column >= range.first.column
            && column <= range.last.column)
            return true;
    }
    return false;
}

bool XlsxSpreadsheet::Close()
{
    if (m_workbook == nullptr)
        return false;
    const lxw_error result = workbook_close(m_workbook);
    m_workbook = nullptr;
    m_sheet = nullptr;
    m_bold = nullptr;
    return result == LXW_NO_ERROR;
}

bool XlsxSpreadsheet::ParseCell(const std::string& address, CellIndex& index)
{
    std::size_t i = 0;
    long column = 0;
    while (i < address.size() && address[i] >= 'A' && address[i] <= 'Z' && column <= LXW_COL_MAX)
        column = column * 26 + (address[i++] - 'A' + 1);
    long long row = 0;
    const std::size_t digits = i;
    while (i < address.size() && address[i] >= '0' && address[i] <= '9' && row <= LXW_ROW_MAX)
        row = row * 10 + (address[i++] - '0');
    if (digits == 0 || i == digits || i != address.size() || column > LXW_COL_MAX || row < 1
        || row > LXW_ROW_MAX)
        return false;
    index.row = static_cast<std::uint32_t>(row - 1);
    index.column = static_cast<std::uint16_t>(column - 1);
    return true;
}

} // namespace ventrix::io
