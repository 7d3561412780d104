#include "Commands.h"

#include "files/RecordTextWriter.h"
#include "files/SpreadsheetTable.h"
#include "io/DataDirectoryLock.h"
#include "io/StandardAppPaths.h"
#include "io/XlsxSpreadsheet.h"
#include "link/FrameDecoder.h"
#include "log/SampleJournal.h"
#include "log/SampleRecord.h"
#include "log/SwapFile.h"
#include "ventrix-cli/CommandLine.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>

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

    const std::filesystem::path swapFile = directory / "BUFFER.SWP";
    const std::optional<log::SampleJournal::RecoveredLog> log
        = log::SampleJournal::Recover(swapFile, directory / "BUFFER.JNL");
    if (!log)
        return args.Fail("nothing to recover: no journal BUFFER.JNL in " + directory.string());

    // Each output takes every record, as the program's Save and Export do.
    const std::array<std::string, 15>& words = link::kSpecialWordTable;
    std::ofstream textFile;
    std::unique_ptr<files::RecordTextWriter> writer;
    if (args.IsSet(QStringLiteral("text"))) {
        textFile.open(args.Value(QStringLiteral("text")).toStdString(), std::ios::binary | std::ios::trunc);
        if (!textFile.is_open())
            return args.Fail("cannot write " + args.Value(QStringLiteral("text")).toStdString());
        writer = std::make_unique<files::RecordTextWriter>(textFile, words);
    } else if (!args.IsSet(QStringLiteral("xlsx"))) {
        writer = std::make_unique<files::RecordTextWriter>(std::cout, words, "\n");
    }
    const std::string xlsxPath = args.Value(QStringLiteral("xlsx")).toStdString();
    bool workbookWritten = false;
    io::XlsxSpreadsheet workbook([&] { return std::filesystem::path(xlsxPath); },
        [&](const std::filesystem::path&, bool written) { workbookWritten = written; });
    files::SpreadsheetTable table(workbook, words);
    const bool toWorkbook = args.IsSet(QStringLiteral("xlsx"));
    if (toWorkbook && !(workbook.Create() && table.WriteHeader()))
        return args.Fail("cannot write " + xlsxPath);

    std::optional<state::SampleRecord> first;
    state::SampleRecord last {};
    long long count = 0;
    bool textOk = true;
    bool tableOk = true;
    log::SwapFile::ForEachSample(swapFile, log->swapPageCount, log->pageRecords, log->pageFill,
        [&](const state::SampleRecord& record) {
            if (!first)
                first = record;
            last = record;
            ++count;
            textOk = textOk && (!writer || writer->Write(record));
            tableOk = tableOk && (!toWorkbook || table.Write(record));
            return textOk || tableOk;
        });

    int status = 0;
    std::cout.flush();
    if (textFile.is_open()) {
        textFile.close();
        textOk = textOk && !textFile.fail();
    }
    if (toWorkbook) {
        workbook.Release();
        tableOk = tableOk && workbookWritten;
    }
    if ((writer && writer->Unformattable()) || table.Unformattable()) {
        std::fprintf(stderr, "ventrix-cli recover: a record cannot be formatted; the output stops there\n");
        status = 1;
    } else if (!textOk || !tableOk) {
        const std::string name = !tableOk        ? xlsxPath
            : args.IsSet(QStringLiteral("text")) ? args.Value(QStringLiteral("text")).toStdString()
                                                 : std::string("standard output");
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
