#include "fakes/FakeSpreadsheet.h"

namespace ventrix::fakes {

bool FakeSpreadsheet::SetCellText(const std::string& cell, const std::string& text)
{
    if (failAfterCells >= 0 && static_cast<int>(cells.size()) >= failAfterCells)
        return false;
    const long long row = std::stoll(cell.substr(1));
    if (row < m_lastRow)
        return false;
    m_lastRow = row;
    cells[cell] = text;
    return true;
}

} // namespace ventrix::fakes
