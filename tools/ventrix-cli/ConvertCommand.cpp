#include "Commands.h"

#include "files/RecordTextWriter.h"
#include "files/SpreadsheetTable.h"
#include "io/XlsxSpreadsheet.h"
#include "link/FrameDecoder.h"
#include "ventrix-cli/CommandLine.h"
#include "ventrix-cli/InputFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ventrix::cli {

namespace {

constexpr std::size_t kRecordBytes = sizeof(state::SampleRecord);

const char kDescription[]
    = "Turns a file of 8-byte sample records into the program's own formats: the swap file\n"
      "BUFFER.SWP (to rescue the pages of a log after the program was closed without saving) or\n"
      "a *.gph graph file. FILE \"-\" reads standard input.\n"
      "\n"
      "  (no option)  one line per record on standard output: time, eight spaces, value, unit\n"
      "  --text OUT   the text file the program's \"Save\" writes for these records (CR LF lines)\n"
      "  --xlsx OUT   the workbook the program's \"Export to Excel\" writes for these records";

const char kEpilogue[]
    = "A trailing piece shorter than 8 bytes is ignored with a warning. A record that cannot be\n"
      "formatted (a word index beyond the word table) stops every output there, as in the\n"
      "program; its number is named on standard error and the exit status is 1. An unreadable\n"
      "FILE or an output that cannot be written: a one-line error and exit status 2.\n"
      "\n"
      "Example:\n"
      "  ventrix-cli convert ~/.local/share/Ventrix/BUFFER.SWP --text rescued.txt\n";

int Fail(const std::string& message)
{
    std::fprintf(stderr, "ventrix-cli convert: %s\n", message.c_str());
    return 2;
}

// One output of the conversion: writes a record, and says whether a failure was a record that
// cannot be formatted rather than a failed write.
struct Output {
    std::string name;
    std::function<bool(const state::SampleRecord&)> write;
    std::function<bool()> unformattable;
};

} // namespace

int RunConvert(int argc, char** argv)
{
    CommandLine args(
        QStringLiteral("convert"), QString::fromUtf8(kDescription), QString::fromUtf8(kEpilogue));
    args.AddPositional(QStringLiteral("FILE"), QStringLiteral("The sample records (- for standard input)."));
    args.AddOption(
        { QStringLiteral("text"), QStringLiteral("Write the program's text file."), QStringLiteral("OUT") });
    args.AddOption(
        { QStringLiteral("xlsx"), QStringLiteral("Write the program's workbook."), QStringLiteral("OUT") });
    if (const auto status = args.Parse(argc, argv))
        return *status;
    const QStringList positionals = args.Positionals();
    if (positionals.isEmpty())
        return Fail("expected a FILE (see --help)");
    if (positionals.size() > 1)
        return Fail("expected one FILE");
    const std::string input = positionals.first().toStdString();
    std::optional<std::string> textPath;
    std::optional<std::string> xlsxPath;
    if (args.IsSet(QStringLiteral("text")))
        textPath = args.Value(QStringLiteral("text")).toStdString();
    if (args.IsSet(QStringLiteral("xlsx")))
        xlsxPath = args.Value(QStringLiteral("xlsx")).toStdString();

    std::string bytes;
    std::string error;
    if (!ReadInputFile(input, bytes, error))
        return Fail(error);
    if (const std::size_t rest = bytes.size() % kRecordBytes; rest != 0)
        std::fprintf(stderr,
            "ventrix-cli convert: warning: %s ends in %zu bytes that are not a whole record; ignored\n",
            input.c_str(), rest);

    const std::array<std::string, 15>& words = link::kSpecialWordTable;
    std::vector<Output> outputs;
    std::ofstream textFile;
    std::unique_ptr<files::RecordTextWriter> textWriter;
    std::unique_ptr<files::RecordTextWriter> lineWriter;
    if (textPath) {
        textFile.open(*textPath, std::ios::binary | std::ios::trunc);
        if (!textFile.is_open())
            return Fail("cannot write " + *textPath + ": " + std::strerror(errno));
        textWriter = std::make_unique<files::RecordTextWriter>(textFile, words);
        outputs.push_back({ *textPath, [&](const state::SampleRecord& r) { return textWriter->Write(r); },
            [&] { return textWriter->Unformattable(); } });
    }
    bool workbookWritten = false;
    std::unique_ptr<io::XlsxSpreadsheet> workbook;
    std::unique_ptr<files::SpreadsheetTable> table;
    if (xlsxPath) {
        workbook = std::make_unique<io::XlsxSpreadsheet>([&] { return std::filesystem::path(*xlsxPath); },
            [&](const std::filesystem::path&, bool written) { workbookWritten = written; });
        table = std::make_unique<files::SpreadsheetTable>(*workbook, words);
        if (!workbook->Create())
            return Fail("cannot write " + *xlsxPath);
        if (!table->WriteHeader()) {
            workbook->Release();
            return Fail("cannot write " + *xlsxPath);
        }
        outputs.push_back({ *xlsxPath, [&](const state::SampleRecord& r) { return table->Write(r); },
            [&] { return table->Unformattable(); } });
    }
    if (outputs.empty()) {
        lineWriter = std::make_unique<files::RecordTextWriter>(std::cout, words, "\n");
        outputs.push_back(
            { "standard output", [&](const state::SampleRecord& r) { return lineWriter->Write(r); },
                [&] { return lineWriter->Unformattable(); } });
    }

    int status = 0;
    const std::size_t count = bytes.size() / kRecordBytes;
    for (std::size_t i = 0; i < count && status == 0; ++i) {
        state::SampleRecord record {};
        std::memcpy(record.data(), bytes.data() + i * kRecordBytes, kRecordBytes);
        // Every output takes the record, so that each stops at it as the program would.
        for (const Output& output : outputs) {
            if (output.write(record))
                continue;
            if (output.unformattable()) {
                if (status == 0)
                    std::fprintf(stderr,
                        "ventrix-cli convert: record %zu (byte %zu): word index %d is beyond the word table; "
                        "output stops there\n",
                        i + 1, i * kRecordBytes, record[4] * 100 + record[5]);
                status = 1;
            } else if (status != 2) {
                status = Fail("cannot write " + output.name + ": " + std::strerror(errno));
            }
        }
    }

    std::cout.flush();
    if (!std::cout && !textPath && !xlsxPath && status == 0)
        status = Fail("cannot write standard output");
    if (textPath) {
        textFile.close();
        if (textFile.fail() && status != 2)
            status = Fail("cannot write " + *textPath);
    }
    if (workbook) {
        workbook->Release();
        if (!workbookWritten && status != 2)
            status = Fail("cannot write " + *xlsxPath);
    }
    return status;
}

} // namespace ventrix::cli
