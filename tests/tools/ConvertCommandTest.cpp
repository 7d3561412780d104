#include "files/FilesTestRig.h"
#include "io/XlsxSpreadsheet.h"

#include <QProcess>
#include <QTemporaryDir>
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
        process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString() };
}

QString Q(const std::filesystem::path& path)
{
    return QString::fromStdString(path.string());
}

// The parts of two workbooks that hold the table and its formats, compared by Python's zipfile.
std::string SameSheets(const std::filesystem::path& a, const std::filesystem::path& b)
{
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"),
        { QStringLiteral("-c"),
            QStringLiteral("import sys, zipfile\n"
                           "parts = ['xl/worksheets/sheet1.xml', 'xl/styles.xml']\n"
                           "a, b = (zipfile.ZipFile(p) for p in sys.argv[1:3])\n"
                           "print('same' if all(a.read(p) == b.read(p) for p in parts) else 'differ')\n"),
            Q(a), Q(b) });
    python.waitForFinished(30000);
    return (python.readAllStandardOutput() + python.readAllStandardError()).trimmed().toStdString();
}

// The swap file of a log of 2,000 samples turns into the very text file and workbook that the
// program's save and export write for that log.
TEST(ConvertCommand, SwapFileGivesTheProgramsTextFileAndWorkbook)
{
    FilesTestRig t;
    t.Fill(2000);
    const std::filesystem::path saved = t.File("saved.txt");
    t.rig.dialogs.fileAnswers.push_back(saved.string());
    t.c.Save_As.Click();
    const std::filesystem::path exported = t.File("exported.xlsx");
    ventrix::io::XlsxSpreadsheet workbook([&] { return exported; });
    ventrix::platform::Services services = t.rig.services;
    ventrix::platform::Services withWorkbook { services.MSComm1, services.timers, services.clock,
        services.dialogs, services.GRAPH_CWGraph, services.KNOB_ANALOG, workbook, services.printer,
        services.paths, services.shell, services.graphPrint };
    ventrix::files::SpreadsheetExport(t.s, withWorkbook).ExportToSpreadsheet();

    const std::filesystem::path text = t.File("converted.txt");
    const std::filesystem::path xlsx = t.File("converted.xlsx");
    const Result r = Convert({ Q(t.rig.paths.SwapFile()), "--text", Q(text), "--xlsx", Q(xlsx) });
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_TRUE(r.out.empty());
    ASSERT_EQ(ReadFile(saved).size(), 2000u * 28);
    EXPECT_EQ(ReadFile(text), ReadFile(saved));
    EXPECT_EQ(SameSheets(xlsx, exported), "same");

    const Result lines = Convert({ Q(t.rig.paths.SwapFile()) });
    std::string expected = ReadFile(saved);
    for (std::size_t at; (at = expected.find("\r\n")) != std::string::npos;)
        expected.erase(at, 1);
    EXPECT_EQ(lines.out, expected);
}

// A trailing piece is ignored with a warning; a record that cannot be formatted ends every output
// there, named on standard error, with status 1.
TEST(ConvertCommand, StopsAtARecordTheProgramCannotFormat)
{
    QTemporaryDir dir;
    const std::filesystem::path input = dir.filePath("records.gph").toStdString();
    std::string bytes;
    for (int k = 0; k < 2; ++k) {
        const auto record = ventrix::testing::Sample(k);
        bytes.append(record.begin(), record.end());
    }
    bytes += std::string { 1, 2, 3, 15, 1, 20, 0, 0 } + std::string(8, 'x') + "abc";
    ventrix::testing::WriteFile(input, bytes);

    const std::filesystem::path text = dir.filePath("out.txt").toStdString();
    const Result r = Convert({ Q(input), "--text", Q(text) });
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("3 bytes"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("record 3 "), std::string::npos) << r.err;
    EXPECT_EQ(ReadFile(text), "12:00:00 AM        120.0mV\r\n12:00:01 AM        120.1mV\r\n");
    EXPECT_EQ(Convert({ Q(input) }).out, "12:00:00 AM        120.0mV\n12:00:01 AM        120.1mV\n");
}

TEST(ConvertCommand, BadInputGivesOneLineAndStatus2)
{
    QTemporaryDir dir;
    ventrix::testing::WriteFile(dir.filePath("ok.swp").toStdString(), std::string(8, ' '));
    const struct {
        QStringList arguments;
        const char* expect;
    } cases[] = {
        { { dir.filePath("missing.swp") }, "cannot read" },
        { { dir.path() }, "is a directory" },
        { { dir.filePath("ok.swp"), "--text", dir.filePath("no/such/dir.txt") }, "cannot write" },
        { { dir.filePath("ok.swp"), "--xlsx" }, "needs a value" },
        { {}, "expected a FILE" },
    };
    for (const auto& c : cases) {
        const Result r = Convert(c.arguments);
        EXPECT_EQ(r.exitCode, 2) << c.expect;
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
        EXPECT_NE(r.err.find(c.expect), std::string::npos) << r.err;
    }
    const Result help = Convert({ "--help" });
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_NE(help.out.find("--xlsx OUT"), std::string::npos);
}

} // namespace
