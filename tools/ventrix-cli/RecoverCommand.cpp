#include "Commands.h"

#include "io/DataDirectoryLock.h"
#include "io/StandardAppPaths.h"
#include "log/SampleJournal.h"
#include "log/SampleRecord.h"
#include "log/SwapFile.h"
#include "ventrix-cli/CommandLine.h"
#include "ventrix-cli/DirectoryPaths.h"
#include "ventrix-cli/RecordOutputs.h"

#include <cstdio>

namespace ventrix::cli {

namespace {

const char kDescription[]
    = "Rebuilds the log of a data directory after a crash, a kill or a power cut: the whole pages\n"
      "of the swap file BUFFER.SWP that belong to the log and the newest samples kept in the\n"
      "journal BUFFER.JNL. Writes it in the program's formats, or without options prints the text\n"
      "file's lines to standard output. Says on standard error how many samples it recovered and\n"
      "the times of the first and the last. Whole pages found only in the journal are written into\n"
      "the swap file, as the program would have; running it again gives the same log.";

const char kEpilogue[]
    = "The journal keeps every sample that was taken before a kill or a crash of the program; after\n"
      "a power cut at most the last 5 seconds of samples may be missing. The next logging run (the\n"
      "program or `ventrix-cli log`) starts a new log in the directory: recover before that.\n"
      "\n"
      "Exit status: 0 recovered, 1 an output could not be written, 2 bad options, nothing to\n"
      "recover or the directory is in use by a logger.\n"
      "\n"
      "Example:\n"
      "  ventrix-cli recover --dir ~/.local/share/Ventrix --text rescued.txt --xlsx rescued.xlsx\n";

} // namespace

int RunRecover(int argc, char** argv)
{
    CommandLine args(
        QStringLiteral("recover"), QString::fromUtf8(kDescription), QString::fromUtf8(kEpilogue));
    args.AddOption({ QStringLiteral("dir"), QStringLiteral("The data directory (the program's own)."),
        QStringLiteral("DIR") });
    args.AddOption({ QStringLiteral("text"), QStringLiteral("Write the log as the program's text file."),
        QStringLiteral("FILE") });
    args.AddOption({ QStringLiteral("xlsx"), QStringLiteral("Write the log as the program's workbook."),
        QStringLiteral("FILE") });
    if (const auto status = args.Parse(argc, argv))
        return *status;
    if (!args.Positionals().isEmpty())
        return args.Fail("unexpected argument " + args.Positionals().first().toStdString());

    const std::filesystem::path directory = args.IsSet(QStringLiteral("dir"))
        ? std::filesystem::path(args.Value(QStringLiteral("dir")).toStdString())
        : io::StandardAppPaths().ProgramDirectory();
    // A running logger is still writing the journal and the swap file.
    io::DataDirectoryLock lock(directory);
    if (!lock.TryLock())
        return args.Fail(lock.RefusalMessage());

    const DirectoryPaths paths(directory);
    const std::optional<log::SampleJournal::RecoveredLog> log
        = log::SampleJournal::Recover(paths.SwapFile(), paths.JournalFile());
    if (!log)
        return args.Fail("nothing to recover: no journal BUFFER.JNL in " + directory.string());

    RecordOutputs outputs(args.Given(QStringLiteral("text")), args.Given(QStringLiteral("xlsx")));
    if (const auto openError = outputs.Open())
        return args.Fail("cannot write " + *openError);

    std::optional<state::SampleRecord> first;
    state::SampleRecord last {};
    long long count = 0;
    log::SwapFile::ForEachSample(paths.SwapFile(), log->swapPageCount, log->pageRecords, log->pageFill,
        [&](const state::SampleRecord& record) {
            if (!first)
                first = record;
            last = record;
            ++count;
            outputs.Write(record);
            return outputs.Writing();
        });

    int status = 0;
    const std::optional<std::string> unwritten = outputs.Close();
    if (outputs.Unformattable()) {
        std::fprintf(stderr, "ventrix-cli recover: a record cannot be formatted; the output stops there\n");
        status = 1;
    } else if (!outputs.FailedOutput().empty() || unwritten) {
        const std::string name = outputs.FailedOutput().empty() ? *unwritten : outputs.FailedOutput();
        std::fprintf(stderr, "ventrix-cli recover: cannot write %s\n", name.c_str());
        status = 1;
    }
    if (count == 0)
        std::fprintf(
            stderr, "ventrix-cli recover: recovered 0 samples from %s\n", directory.string().c_str());
    else
        std::fprintf(stderr, "ventrix-cli recover: recovered %lld samples from %s, taken from %s to %s\n",
            count, directory.string().c_str(), log::FormatRecordTime(*first).c_str(),
            log::FormatRecordTime(last).c_str());
    return status;
}

} // namespace ventrix::cli
