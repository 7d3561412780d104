#pragma once

#include "files/RecordTextWriter.h"
#include "files/SpreadsheetTable.h"
#include "io/XlsxSpreadsheet.h"
#include "state/AppState.h"

#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ventrix::cli {

// Where a command writes sample records in the program's formats: the text file of Save (--text),
// the workbook of Export to Excel (--xlsx), or, with neither, the text file's lines on standard
// output. Every output takes each record, so that each stops at a record that cannot be formatted,
// as in the program. An output that fails takes no more records; the others go on.
class RecordOutputs {
public:
    RecordOutputs(std::optional<std::string> textPath, std::optional<std::string> xlsxPath);
    ~RecordOutputs();
    RecordOutputs(const RecordOutputs&) = delete;
    RecordOutputs& operator=(const RecordOutputs&) = delete;

    // Creates the files. What cannot be created ("PATH" or "PATH: reason"), else nothing.
    std::optional<std::string> Open();
    // The record to every output still writing. False when an output failed on it: Unformattable()
    // then tells whether the record cannot be formatted, else FailedOutput() names the output.
    bool Write(const state::SampleRecord& record);
    bool Unformattable() const { return m_unformattable; }
    const std::string& FailedOutput() const { return m_failed; }
    // Whether some output still takes records.
    bool Writing() const;
    // Finishes the files and standard output. The name of one that was not written whole, else
    // nothing.
    std::optional<std::string> Close();

private:
    struct Output;

    std::optional<std::string> m_textPath;
    std::optional<std::string> m_xlsxPath;
    std::ofstream m_textFile;
    bool m_workbookWritten = false;
    std::unique_ptr<io::XlsxSpreadsheet> m_workbook;
    std::unique_ptr<files::SpreadsheetTable> m_table;
    std::vector<std::unique_ptr<files::RecordTextWriter>> m_writers;
    std::vector<Output> m_outputs;
    bool m_unformattable = false;
    std::string m_failed;
    bool m_closed = false;
};

} // namespace ventrix::cli
