#include "Commands.h"

#include "ventrix-cli/CommandLine.h"
#include "ventrix-cli/InputFile.h"
#include "ventrix-cli/RecordOutputs.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>

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
        return args.Fail("expected a FILE (see --help)");
    if (positionals.size() > 1)
        return args.Fail("expected one FILE");
    const std::string input = positionals.first().toStdString();

    std::string bytes;
    std::string error;
    if (!ReadInputFile(input, bytes, error))
        return args.Fail(error);
    if (const std::size_t rest = bytes.size() % kRecordBytes; rest != 0)
        std::fprintf(stderr,
            "ventrix-cli convert: warning: %s ends in %zu bytes that are not a whole record; ignored\n",
            input.c_str(), rest);

    RecordOutputs outputs(args.Given(QStringLiteral("text")), args.Given(QStringLiteral("xlsx")));
    if (const auto openError = outputs.Open())
        return args.Fail("cannot write " + *openError);

    int status = 0;
    const std::size_t count = bytes.size() / kRecordBytes;
    for (std::size_t i = 0; i < count && status == 0; ++i) {
        state::SampleRecord record {};
        std::memcpy(record.data(), bytes.data() + i * kRecordBytes, kRecordBytes);
        if (outputs.Write(record))
            continue;
        if (outputs.Unformattable()) {
            std::fprintf(stderr,
                "ventrix-cli convert: record %zu (byte %zu): word index %d is beyond the word table; "
                "output stops there\n",
                i + 1, i * kRecordBytes, record[4] * 100 + record[5]);
            status = 1;
        } else {
            status = args.Fail("cannot write " + outputs.FailedOutput() + ": " + std::strerror(errno));
        }
    }
    if (const auto failed = outputs.Close(); failed && status != 2)
        status = args.Fail("cannot write " + *failed);
    return status;
}

} // namespace ventrix::cli
