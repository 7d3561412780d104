#include "files/RecordTextWriter.h"

#include "log/SampleRecord.h"

#include <optional>
#include <utility>

namespace ventrix::files {

namespace {
constexpr const char* kBeforeValue = "        ";
}

RecordTextWriter::RecordTextWriter(
    std::ostream& out, const std::array<std::string, 15>& wordTable, std::string lineEnd)
    : m_out(out)
    , m_wordTable(wordTable)
    , m_lineEnd(std::move(lineEnd))
{
}

bool RecordTextWriter::Write(const state::SampleRecord& record)
{
    std::optional<std::string> line = log::FormatRecordLine(record, m_wordTable, kBeforeValue, "");
    if (!line) {
        m_unformattable = true;
        return false;
    }
    line->append(m_lineEnd);
    m_out.write(line->data(), static_cast<std::streamsize>(line->size()));
    return static_cast<bool>(m_out);
}

} // namespace ventrix::files
