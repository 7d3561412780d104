// `ventrix-cli log` and `ventrix-cli recover` end to end: the virtual meter on a pseudo-terminal,
// the real serial path and event loop, at a 1 s interval for a few samples.
#include "log/SampleJournal.h"
#include "tools/ProgramFiles.h"
#include "ventrix-cli/Duration.h"
#include "ventrix-cli/FrameEncoder.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/types.h>

namespace {

using ventrix::testing::ReadFile;

QString Q(const std::filesystem::path& path)
{
    return QString::fromStdString(path.string());
}

// The time of a line ("9:05:03 PM    1.234 V" or "09:05:03 PM        1.234V") with a two-digit
// hour, so that live lines and lines rebuilt from records compare.
std::string TimeOf(const std::string& line)
{
    const std::string time = line.substr(0, line.find('M') + 1);
    return time.size() == 10 ? "0" + time : time;
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find('\n', begin)) != std::string::npos; begin = end + 1)
        lines.push_back(text.substr(begin, end - begin - (end > begin && text[end - 1] == '\r')));
    return lines;
}

std::vector<std::string> Times(const std::vector<std::string>& lines)
{
    std::vector<std::string> times;
    for (const std::string& line : lines)
        times.push_back(TimeOf(line));
    return times;
}

// A running `ventrix-cli` whose standard output is collected as it comes.
struct Cli {
    explicit Cli(const QStringList& arguments)
    {
        process.start(VENTRIX_CLI_PATH, arguments);
        process.waitForStarted(5000);
    }
    ~Cli()
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished(3000);
        }
    }
    // Waits until `count` lines were printed; the lines so far.
    std::vector<std::string> WaitForLines(std::size_t count, int timeoutMs = 8000)
    {
        QElapsedTimer clock;
        clock.start();
        while (Lines(out).size() < count && clock.elapsed() < timeoutMs
            && process.state() == QProcess::Running) {
            process.waitForReadyRead(100);
            out += process.readAllStandardOutput().toStdString();
        }
        return Lines(out);
    }
    void Signal(int signal) { ::kill(static_cast<pid_t>(process.processId()), signal); }
    // The exit status once ended (-1: crashed or still running), with the rest of the output.
    int Finish(int timeoutMs = 10000)
    {
        process.waitForFinished(timeoutMs);
        out += process.readAllStandardOutput().toStdString();
        err += process.readAllStandardError().toStdString();
        return process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit
            ? process.exitCode()
            : -1;
    }

    QProcess process;
    std::string out;
    std::string err;
};

// The virtual meter, fast, on its pseudo-terminal.
struct Meter : Cli {
    explicit Meter(const QStringList& more = {})
        : Cli(QStringList { "meter", "--rate", "20" } + more)
    {
        process.waitForReadyRead(5000);
        device = process.readLine().trimmed();
    }
    QString device;
};

struct LogDir {
    QTemporaryDir root;
    std::filesystem::path dir = root.filePath("data").toStdString();
    std::filesystem::path File(const std::string& name) const { return root.filePath(Q(name)).toStdString(); }
    QStringList Log(const QString& device, const QStringList& more = {}) const
    {
        return QStringList { "log", "--port", device, "--interval", "1", "--dir", Q(dir) } + more;
    }
};

// A short log: its lines on standard output, and the text file and workbook that the program's own
// Save and Export write for the records it logged (read back from its journal).
TEST(LogCommand, ShortLogWritesWhatTheProgramWritesForItsRecords)
{
    Meter meter;
    LogDir d;
    Cli log(d.Log(
        meter.device, { "--samples", "3", "--text", Q(d.File("log.txt")), "--xlsx", Q(d.File("log.xlsx")) }));
    ASSERT_EQ(log.Finish(), 0) << log.err;
    const std::vector<std::string> printed = Lines(log.out);
    ASSERT_EQ(printed.size(), 3u) << log.out;
    EXPECT_EQ(printed[0].find('\r'), std::string::npos);

    const auto journal = ventrix::log::SampleJournal::Read(d.dir / "BUFFER.JNL");
    ASSERT_TRUE(journal);
    ASSERT_EQ(journal->records.size(), 3u);
    ventrix::testing::FilesTestRig t;
    std::copy(journal->records.begin(), journal->records.end(), t.s.PageRecords.begin());
    t.s.PageFill = 4;
    ventrix::testing::SaveAndExportAsTheProgramDoes(t, "saved.txt", "exported.xlsx");

    const std::string text = ReadFile(d.File("log.txt"));
    EXPECT_EQ(text, ReadFile(t.File("saved.txt")));
    EXPECT_EQ(Times(Lines(text)), Times(printed));
    EXPECT_EQ(ventrix::testing::CompareWorkbookSheets(d.File("log.xlsx"), t.File("exported.xlsx")), "True");
    EXPECT_FALSE(std::filesystem::exists(d.dir / "ventrix.lock"));
}

// While a logger runs, a second logger and a recovery of its directory are refused; Ctrl-C then
// writes everything logged so far.
TEST(LogCommand, SecondLoggerIsRefusedAndInterruptWritesTheLogSoFar)
{
    Meter meter;
    LogDir d;
    Cli log(d.Log(meter.device, { "--text", Q(d.File("log.txt")) }));
    ASSERT_GE(log.WaitForLines(2).size(), 2u) << log.out;

    for (const QStringList& second : { d.Log(meter.device), QStringList { "recover", "--dir", Q(d.dir) } }) {
        Cli refused(second);
        EXPECT_EQ(refused.Finish(), 2) << second.join(' ').toStdString();
        EXPECT_NE(refused.err.find("Ventrix is already running with this data directory: " + d.dir.string()),
            std::string::npos)
            << refused.err;
    }

    log.Signal(SIGINT);
    ASSERT_EQ(log.Finish(), 0) << log.err;
    const std::vector<std::string> printed = Lines(log.out);
    EXPECT_GE(printed.size(), 2u);
    EXPECT_EQ(Times(Lines(ReadFile(d.File("log.txt")))), Times(printed));
}

// A killed logger: recover gives back every sample it printed, as text lines, a text file and a
// workbook, and gives the same again when run twice.
TEST(LogCommand, RecoverAfterAKillGivesBackEverySamplePrinted)
{
    Meter meter;
    LogDir d;
    Cli log(d.Log(meter.device));
    const std::vector<std::string> printed = log.WaitForLines(3);
    ASSERT_GE(printed.size(), 3u) << log.out;
    log.Signal(SIGKILL);
    EXPECT_EQ(log.Finish(), -1);

    Cli recover({ "recover", "--dir", Q(d.dir) });
    ASSERT_EQ(recover.Finish(), 0) << recover.err;
    const std::vector<std::string> recovered = Lines(recover.out);
    ASSERT_GE(recovered.size(), printed.size());
    EXPECT_EQ(
        Times({ recovered.begin(), recovered.begin() + static_cast<long>(printed.size()) }), Times(printed));
    EXPECT_NE(
        recover.err.find("recovered " + std::to_string(recovered.size()) + " samples"), std::string::npos)
        << recover.err;
    EXPECT_NE(recover.err.find(TimeOf(printed.front())), std::string::npos) << recover.err;

    Cli again({ "recover", "--dir", Q(d.dir), "--text", Q(d.File("again.txt")), "--xlsx",
        Q(d.File("again.xlsx")) });
    ASSERT_EQ(again.Finish(), 0) << again.err;
    EXPECT_EQ(Lines(ReadFile(d.File("again.txt"))), recovered);
    EXPECT_GT(std::filesystem::file_size(d.File("again.xlsx")), 0u);
}

// The meter's terminal disappears in the middle: the logger keeps waiting without crashing and
// ends at its --duration with the samples it has.
TEST(LogCommand, VanishedDeviceDoesNotEndTheLog)
{
    LogDir d;
    auto meter = std::make_unique<Meter>();
    Cli log(d.Log(meter->device, { "--duration", "4", "--text", Q(d.File("log.txt")) }));
    ASSERT_GE(log.WaitForLines(2).size(), 2u) << log.out;
    meter.reset();
    ASSERT_EQ(log.Finish(8000), 0) << log.err;
    EXPECT_EQ(Times(Lines(ReadFile(d.File("log.txt")))), Times(Lines(log.out)));
}

// Refusals: a port that cannot be opened, bad options, a meter in relative mode; and the tool
// links no widgets.
TEST(LogCommand, RefusalsAndTheirExitStatus)
{
    LogDir d;
    const struct {
        QStringList arguments;
        int status;
        const char* expect;
    } cases[] = {
        { d.Log("/dev/ventrix-no-such-port"), 2, "Cannot open /dev/ventrix-no-such-port" },
        { d.Log("/dev/null", { "--interval", "3" }), 2, "--interval must be" },
        { d.Log("/dev/null", { "--samples", "2", "--duration", "1m" }), 2, "not both" },
        { d.Log("COM7"), 2, "COM1 to COM4" },
        { { "log", "--interval", "1" }, 2, "--port is required" },
        { { "log", "--port" }, 2, "Missing value" },
    };
    for (const auto& c : cases) {
        Cli cli(c.arguments);
        EXPECT_EQ(cli.Finish(), c.status) << c.expect;
        EXPECT_NE(cli.err.find(c.expect), std::string::npos) << cli.err;
        EXPECT_TRUE(cli.out.empty()) << cli.out;
    }

    std::string error;
    const auto relative = ventrix::cli::EncodeFrame({ .text = "0.002", .rel = true }, error);
    ASSERT_TRUE(relative) << error;
    ventrix::testing::WriteFile(d.File("relative.bin"), std::string(relative->begin(), relative->end()));
    Meter meter({ "--frames", Q(d.File("relative.bin")) });
    Cli refused(d.Log(meter.device, { "--text", Q(d.File("never.txt")) }));
    EXPECT_EQ(refused.Finish(), 3) << refused.err;
    EXPECT_NE(refused.err.find("Please disable relative mode before acquiring data"), std::string::npos)
        << refused.err;
    EXPECT_TRUE(refused.out.empty());

    EXPECT_EQ(ReadFile(VENTRIX_CLI_PATH).find("libQt5Widgets"), std::string::npos);
}

TEST(LogCommand, DurationsAsTyped)
{
    const struct {
        const char* text;
        std::optional<long long> seconds;
    } cases[] = {
        { "90", 90 },
        { "45s", 45 },
        { "15m", 900 },
        { "1h30m", 5400 },
        { "5d", 432000 },
        { "", std::nullopt },
        { "0", std::nullopt },
        { "1h30", std::nullopt },
        { "2w", std::nullopt },
        { "-5", std::nullopt },
        { "400d", std::nullopt },
    };
    for (const auto& c : cases)
        EXPECT_EQ(ventrix::cli::ParseDurationSeconds(c.text), c.seconds) << c.text;
}

} // namespace
