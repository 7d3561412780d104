#include "tools/ProgramFiles.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace {

using ventrix::testing::FilesTestRig;
using ventrix::testing::ReadFile;

struct Result {
    int exitCode = -1;
    std::string out;
    std::string err;
};

Result Convert(const QStringList& arguments)
{
    QProcess process;
    process.start(VENTRIX_CLI_PATH, QStringList { "convert" } + arguments);
    process.waitForFinished(30000);
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        process.readAllStandardOutput().trimmed().toStdString(),
        process.readAllStandardError().toStdString() };
}

QString Q(const std::filesystem::path& path)
{
    return QString::fromStdString(path.string());
}

// The swap file of a log of 2,000 samples turns into the very text file and workbook (its sheet
// and formats) that the program's save and export write for that log.
TEST(ConvertCommand, SwapFileGivesTheProgramsTextFileAndWorkbook)
{
    FilesTestRig t;
    t.Fill(2000);
    SaveAndExportAsTheProgramDoes(t, "saved.txt", "exported.xlsx");

    const Result r = Convert({ Q(t.rig.paths.SwapFile()), "--text", Q(t.File("converted.txt")), "--xlsx",
        Q(t.File("converted.xlsx")) });
    EXPECT_EQ(r.exitCode, 0) << r.err;
    ASSERT_EQ(ReadFile(t.File("saved.txt")).size(), 2000u * 28);
    EXPECT_EQ(ReadFile(t.File("converted.txt")), ReadFile(t.File("saved.txt")));
    EXPECT_EQ(
        ventrix::testing::CompareWorkbookSheets(t.File("converted.xlsx"), t.File("exported.xlsx")), "True");
}

// A trailing piece is ignored with a warning; a record that cannot be formatted ends the output
// there, named on standard error, with status 1. Bad input: one line and status 2.
TEST(ConvertCommand, StopsAtARecordTheProgramCannotFormatAndRefusesBadInput)
{
    FilesTestRig t;
    std::string bytes;
    for (const auto& record : { ventrix::testing::Sample(0), ventrix::testing::Sample(1) })
        bytes.append(record.begin(), record.end());
    ventrix::testing::WriteFile(
        t.File("in.gph"), bytes + std::string { 1, 2, 3, 15, 1, 20, 0, 0 } + "12345678abc");
    const Result r = Convert({ Q(t.File("in.gph")), "--text", Q(t.File("out.txt")) });
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("3 bytes"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("record 3 "), std::string::npos) << r.err;
    EXPECT_EQ(ReadFile(t.File("out.txt")), "12:00:00 AM        120.0mV\r\n12:00:01 AM        120.1mV\r\n");
    EXPECT_EQ(Convert({ Q(t.File("in.gph")) }).out, "12:00:00 AM        120.0mV\n12:00:01 AM        120.1mV");

    const struct {
        QStringList arguments;
        const char* expect;
    } cases[] = {
        { { Q(t.File("missing.swp")) }, "cannot read" },
        { { Q(t.File(".")) }, "is a directory" },
        { { Q(t.File("out.txt")), "--text", Q(t.File("no/such/dir.txt")) }, "cannot write" },
    };
    for (const auto& c : cases) {
        const Result bad = Convert(c.arguments);
        EXPECT_EQ(bad.exitCode, 2) << c.expect;
        EXPECT_EQ(std::count(bad.err.begin(), bad.err.end(), '\n'), 1) << bad.err;
        EXPECT_NE(bad.err.find(c.expect), std::string::npos) << bad.err;
    }
    EXPECT_NE(Convert({ "--help" }).out.find("--xlsx OUT"), std::string::npos);
}

} // namespace
