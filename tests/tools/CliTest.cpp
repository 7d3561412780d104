#include "ventrix-cli/FrameEncoder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

using namespace std::chrono_literals;
using ventrix::cli::MeterDisplay;

namespace {

struct Result {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

Result RunCli(const QStringList& arguments, const QByteArray& input = {})
{
    QProcess process;
    process.start(VENTRIX_CLI_PATH, arguments);
    if (!process.waitForStarted(5000))
        return {};
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(10000);
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        process.readAllStandardOutput(), process.readAllStandardError() };
}

std::string Frame(MeterDisplay display)
{
    std::string error;
    const auto frame = ventrix::cli::EncodeFrame(display, error);
    EXPECT_TRUE(frame) << error;
    return frame ? std::string(frame->begin(), frame->end()) : std::string();
}

MeterDisplay Display(std::uint8_t mode, const char* text)
{
    MeterDisplay d;
    d.mode = mode;
    d.text = text;
    return d;
}

std::vector<QJsonObject> JsonLines(const QByteArray& out)
{
    std::vector<QJsonObject> lines;
    for (const QByteArray& line : out.split('\n')) {
        if (line.isEmpty())
            continue;
        QJsonParseError error {};
        const QJsonDocument doc = QJsonDocument::fromJson(line, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << line.toStdString();
        EXPECT_TRUE(doc.isObject()) << line.toStdString();
        lines.push_back(doc.object());
    }
    return lines;
}

// Reads what arrives on a device for a while.
std::string ReadFor(const std::string& path, std::chrono::milliseconds duration)
{
    const int fd = ::open(path.c_str(), O_RDONLY | O_NOCTTY | O_NONBLOCK);
    if (fd < 0)
        return {};
    std::string bytes;
    const auto end = std::chrono::steady_clock::now() + duration;
    while (std::chrono::steady_clock::now() < end) {
        pollfd p { fd, POLLIN, 0 };
        if (::poll(&p, 1, 20) > 0) {
            char buffer[256];
            const ssize_t n = ::read(fd, buffer, sizeof buffer);
            if (n > 0)
                bytes.append(buffer, static_cast<std::size_t>(n));
        }
    }
    ::close(fd);
    return bytes;
}

// A running `ventrix-cli meter`, stopped by SIGINT at the end.
struct Meter {
    QProcess process;
    std::string path;

    explicit Meter(const QStringList& extra)
    {
        process.start(VENTRIX_CLI_PATH, QStringList { "meter" } + extra);
        if (process.waitForStarted(5000) && process.waitForReadyRead(5000))
            path = process.readLine().trimmed().toStdString();
    }
    int Interrupt()
    {
        ::kill(static_cast<pid_t>(process.processId()), SIGINT);
        if (!process.waitForFinished(3000))
            return -1;
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    ~Meter()
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished(3000);
        }
    }
};

} // namespace

TEST(Cli, BadInputGivesOneLineOnStderrAndStatus2)
{
    QTemporaryDir dir;
    const struct {
        QStringList arguments;
        const char* expect;
    } cases[] = {
        { { "decode", dir.filePath("missing.bin") }, "cannot read" },
        { { "decode", dir.path() }, "is a directory" },
        { { "decode", "a", "b" }, "at most one" },
        { { "meter", "--rate", "0" }, "--rate" },
        { { "meter", "--rate", "fast" }, "--rate" },
        { { "meter", "--frames", dir.filePath("missing.bin") }, "cannot read" },
        { { "meter", "--frames" }, "needs a value" },
        { { "meter", "--loud" }, "unknown option" },
    };
    for (const auto& c : cases) {
        const Result r = RunCli(c.arguments);
        const std::string args = c.arguments.join(' ').toStdString();
        EXPECT_EQ(r.exitCode, 2) << args;
        EXPECT_TRUE(r.out.isEmpty()) << args;
        EXPECT_EQ(r.err.count('\n'), 1) << args << ": " << r.err.toStdString();
        EXPECT_TRUE(r.err.contains(c.expect)) << args << ": " << r.err.toStdString();
    }
    const Result usage = RunCli({ "fly" });
    EXPECT_EQ(usage.exitCode, 2);
    EXPECT_TRUE(usage.err.contains("usage: ventrix-cli"));
}

TEST(Cli, DecodePrintsOneJsonLinePerAcceptedFrame)
{
    MeterDisplay rel = Display(0, "0.002");
    rel.rel = true;
    MeterDisplay celsius = Display(25, "23.5");
    celsius.hold = true;
    MeterDisplay negative = Display(0, "1.234");
    negative.negative = true;
    // A relative reading first (refused: no absolute reading yet), then readings, one of them a
    // word, then relative mode again (accepted now), all aligned on 9 bytes.
    const std::string capture
        = Frame(rel) + Frame(negative) + Frame(Display(8, "OPEn")) + Frame(celsius) + Frame(rel);

    QTemporaryDir dir;
    const QString path = dir.filePath("capture.bin");
    std::ofstream(path.toStdString(), std::ios::binary) << capture;
    const Result fromFile = RunCli({ "decode", path });
    ASSERT_EQ(fromFile.exitCode, 0) << fromFile.err.toStdString();
    const Result fromStdin = RunCli({ "decode" }, QByteArray::fromStdString(capture));
    EXPECT_EQ(fromStdin.out, fromFile.out);

    const auto lines = JsonLines(fromFile.out);
    ASSERT_EQ(lines.size(), 5u) << fromFile.out.toStdString();
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i]["offset"].toInt(-1), int(9 * i));

    EXPECT_TRUE(lines[0]["refused"].toBool());
    EXPECT_TRUE(lines[0]["IsRelative"].toBool());

    const QJsonObject volts = lines[1];
    EXPECT_FALSE(volts["refused"].toBool());
    EXPECT_EQ(volts["mode"].toInt(-1), 0);
    EXPECT_EQ(volts["FunctionKind"].toInt(-1), 0);
    EXPECT_EQ(volts["UnitLabel"].toString(), "V");
    EXPECT_EQ(volts["DecimalDivisor"].toInt(), 1000);
    EXPECT_EQ(volts["CountValue"].toDouble(), 1234);
    EXPECT_FALSE(volts["IsPositive"].toBool(true));
    EXPECT_FALSE(volts["HasWord"].toBool(true));
    EXPECT_TRUE(volts["DisplayWord"].isNull());
    EXPECT_TRUE(volts["lcd"].isObject());
    for (const char* key : { "DIGIT_LBL", "MODE_LBL", "HOLD_LBL", "AUTO_LBL", "BATTERY_LBL", "FUNCTION_LBL" })
        EXPECT_TRUE(volts["lcd"].toObject()[key].isString()) << key;
    for (const char* key : { "NEG_LBL", "MIN_LBL" })
        EXPECT_TRUE(volts["lcd"].toObject()[key].isBool()) << key;

    const QJsonObject open = lines[2];
    EXPECT_TRUE(open["HasWord"].toBool());
    EXPECT_EQ(open["DisplayWord"].toString(), "OPEn");
    EXPECT_EQ(open["UnitMultiplier"].toDouble(), 10000);

    // The degree sign comes out as UTF-8, not escaped and not Latin-1.
    EXPECT_TRUE(fromFile.out.contains("\"UnitLabel\":\"\xC2\xB0"
                                      "C\""));
    EXPECT_EQ(lines[3]["CountValue"].toDouble(), 235);

    EXPECT_FALSE(lines[4]["refused"].toBool(true));
}

TEST(Cli, MeterPacesFramesAndStopsCleanlyOnInterrupt)
{
    Meter meter({ "--rate", "10" });
    ASSERT_FALSE(meter.path.empty()) << meter.process.readAllStandardError().toStdString();
    EXPECT_TRUE(meter.path.starts_with("/dev/pts/")) << meter.path;

    const std::string bytes = ReadFor(meter.path, 1000ms);
    // 10 frames a second, 9 bytes each, at the line's pace: about 90 bytes in a second; a meter
    // that sent as fast as it could would send thousands.
    EXPECT_GE(bytes.size(), 45u);
    EXPECT_LE(bytes.size(), 135u);
    EXPECT_EQ(meter.Interrupt(), 0);
}

TEST(Cli, MeterSendsTheBytesOfACaptureFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("capture.bin");
    const std::string capture = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"; // three pieces of 9, 9 and 8 bytes
    std::ofstream(path.toStdString(), std::ios::binary) << capture;

    Meter meter({ "--frames", path, "--rate", "20" });
    ASSERT_FALSE(meter.path.empty());
    const std::string bytes = ReadFor(meter.path, 800ms);
    ASSERT_GE(bytes.size(), 20u);
    // Whatever we caught is a piece of the file played in a loop.
    EXPECT_NE((capture + capture + capture + capture).find(bytes.substr(0, 40)), std::string::npos) << bytes;
    meter.process.terminate();
    ASSERT_TRUE(meter.process.waitForFinished(3000));
    EXPECT_EQ(meter.process.exitCode(), 0);
}
