#include "ventrix-cli/RecordOutputs.h"

#include "link/FrameDecoder.h"

#include <cerrno>
#include <cstring>
#include <functional>
#include <iostream>

namespace ventrix::cli {

struct RecordOutputs::Output {
    std::string name;
    std::function<bool(const state::SampleRecord&)> write;
    std::function<bool()> unformattable;
    bool failed = false;
};

RecordOutputs::RecordOutputs(std::optional<std::string> textPath, std::optional<std::string> xlsxPath)
    : m_textPath(std::move(textPath))
    , m_xlsxPath(std::move(xlsxPath))
{
}

RecordOutputs::~RecordOutputs()
{
    Close();
}

std::optional<std::string> RecordOutputs::Open()
{
    const std::array<std::string, 15>& words = link::kSpecialWordTable;
    auto addWriter = [&](std::ostream& out, const std::string& name, const char* lineEnd) {
        files::RecordTextWriter* writer
            = m_writers.emplace_back(std::make_unique<files::RecordTextWriter>(out, words, lineEnd)).get();
        m_outputs.push_back({ name, [writer](const auto& r) { return writer->Write(r); },
            [writer] { return writer->Unformattable(); } });
    };
    if (m_textPath) {
        m_textFile.open(*m_textPath, std::ios::binary | std::ios::trunc);
        if (!m_textFile.is_open())
            return *m_textPath + ": " + std::strerror(errno);
        addWriter(m_textFile, *m_textPath, files::RecordTextWriter::kFileLineEnd);
    }
    if (m_xlsxPath) {
        m_workbook
            = std::make_unique<io::XlsxSpreadsheet>([this] { return std::filesystem::path(*m_xlsxPath); },
                [this](const std::filesystem::path&, bool written) { m_workbookWritten = written; });
        m_table = std::make_unique<files::SpreadsheetTable>(*m_workbook, words);
        if (!m_workbook->Create())
            return *m_xlsxPath;
        if (!m_table->WriteHeader()) {
            m_workbook->Release();
            m_workbook.reset();
            return *m_xlsxPath;
        }
        files::SpreadsheetTable* table = m_table.get();
        m_outputs.push_back({ *m_xlsxPath, [table](const auto& r) { return table->Write(r); },
            [table] { return table->Unformattable(); } });
    }
    if (m_outputs.empty())
        addWriter(std::cout, "standard output", "\n");
    return std::nullopt;
}

bool RecordOutputs::Write(const state::SampleRecord& record)
{
    bool written = true;
    for (Output& output : m_outputs) {
        if (output.failed || output.write(record))
            continue;
        output.failed = true;
        written = false;
        if (output.unformattable())
            m_unformattable = true;
        else if (m_failed.empty())
            m_failed = output.name;
    }
    return written;
}

bool RecordOutputs::Writing() const
{
    for (const Output& output : m_outputs)
        if (!output.failed)
            return true;
    return false;
}

std::optional<std::string> RecordOutputs::Close()
{
    if (m_closed)
        return std::nullopt;
    m_closed = true;
    std::optional<std::string> failed;
    std::cout.flush();
    if (!m_textPath && !m_xlsxPath && !std::cout)
        failed = "standard output";
    if (m_textFile.is_open()) {
        m_textFile.close();
        if (m_textFile.fail() && !failed)
            failed = *m_textPath;
    }
    if (m_workbook) {
        m_workbook->Release();
        if (!m_workbookWritten && !failed)
            failed = *m_xlsxPath;
    }
    return failed;
}

} // namespace ventrix::cli
