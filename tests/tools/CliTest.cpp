#include "ventrix-cli/FrameEncoder.h"

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

std::string Frame(const MeterDisplay& display)
{
    std::string error;
    const auto frame = ventrix::cli::EncodeFrame(display, error);
    EXPECT_TRUE(frame) << error;
    return frame ? std::string(frame->begin(), frame->end()) : std::string();
}

// Reads what arrives on a device for a while.
std::string ReadFor(const std::string& path, std::chrono::milliseconds duration)
{
    const int fd = ::open(path.c_str(), O_RDONLY | O_NOCTTY | O_NONBLOCK);
    std::string bytes;
    const auto end = std::chrono::steady_clock::now() + duration;
    while (fd >= 0 && std::chrono::steady_clock::now() < end) {
        pollfd p { fd, POLLIN, 0 };
        char buffer[256];
        const ssize_t n = ::poll(&p, 1, 20) > 0 ? ::read(fd, buffer, sizeof buffer) : 0;
        if (n > 0)
            bytes.append(buffer, static_cast<std::size_t>(n));
    }
    ::close(fd);
    return bytes;
}

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
    // A relative reading first (refused: no absolute reading yet), then readings, one of them a
    // word, then relative mode again (accepted now), all aligned on 9 bytes.
    const MeterDisplay rel { .text = "0.002", .rel = true };
    const std::string capture = Frame(rel) + Frame({ .text = "1.234", .negative = true })
        + Frame({ .mode = 8, .text = "OPEn" }) + Frame({ .mode = 25, .text = "23.5", .hold = true })
        + Frame(rel);

    QTemporaryDir dir;
    const QString path = dir.filePath("capture.bin");
    std::ofstream(path.toStdString(), std::ios::binary) << capture;
    const Result fromFile = RunCli({ "decode", path });
    ASSERT_EQ(fromFile.exitCode, 0) << fromFile.err.toStdString();
    const Result fromStdin = RunCli({ "decode" }, QByteArray::fromStdString(capture));
    EXPECT_EQ(fromStdin.out, fromFile.out);

    std::vector<QJsonObject> lines;
    for (const QByteArray& line : fromFile.out.split('\n')) {
        const QJsonDocument doc = QJsonDocument::fromJson(line);
        EXPECT_TRUE(line.isEmpty() || doc.isObject()) << line.toStdString();
        if (doc.isObject())
            lines.push_back(doc.object());
    }
    ASSERT_EQ(lines.size(), 5u) << fromFile.out.toStdString();
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i]["offset"].toInt(-1), int(9 * i));

    EXPECT_TRUE(lines[0]["refused"].toBool());
    EXPECT_TRUE(lines[0]["IsRelative"].toBool());
    EXPECT_FALSE(lines[4]["refused"].toBool(true));

    const QJsonObject volts = lines[1];
    EXPECT_FALSE(volts["refused"].toBool());
    EXPECT_EQ(volts["UnitLabel"].toString(), "V");
    EXPECT_EQ(volts["CountValue"].toDouble(), 1234);
    EXPECT_FALSE(volts["IsPositive"].toBool(true));
    EXPECT_FALSE(volts["HasWord"].toBool(true));
    EXPECT_TRUE(volts["DisplayWord"].isNull());
    const QJsonObject lcd = volts["lcd"].toObject();
    for (const char* key : { "DIGIT_LBL", "MODE_LBL", "HOLD_LBL", "AUTO_LBL", "BATTERY_LBL", "FUNCTION_LBL" })
        EXPECT_TRUE(lcd[key].isString()) << key;
    for (const char* key : { "NEG_LBL", "MIN_LBL" })
        EXPECT_TRUE(lcd[key].isBool()) << key;

    EXPECT_TRUE(lines[2]["HasWord"].toBool());
    EXPECT_EQ(lines[2]["DisplayWord"].toString(), "OPEn");
    EXPECT_EQ(lines[2]["UnitMultiplier"].toDouble(), 10000);

    // The degree sign comes out as UTF-8 (C2 B0), not escaped and not Latin-1.
    EXPECT_TRUE(fromFile.out.contains("\"UnitLabel\":\"\xC2\xB0"
                                      "C\""));
    EXPECT_EQ(lines[3]["CountValue"].toDouble(), 235);
}

// The meter plays a capture file in a loop, one 9-byte piece per frame period, and stops
// cleanly on an interrupt.
TEST(Cli, MeterPacesFramesAndStopsCleanlyOnInterrupt)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("capture.bin");
    const std::string capture = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"; // pieces of 9, 9 and 8 bytes
    std::ofstream(path.toStdString(), std::ios::binary) << capture;

    QProcess meter;
    meter.start(VENTRIX_CLI_PATH, { "meter", "--frames", path, "--rate", "10" });
    ASSERT_TRUE(meter.waitForStarted(5000) && meter.waitForReadyRead(5000));
    const std::string device = meter.readLine().trimmed().toStdString();
    EXPECT_TRUE(device.starts_with("/dev/pts/")) << device;

    const std::string bytes = ReadFor(device, 1000ms);
    // 10 pieces a second at the line's pace: about 87 bytes in a second; a meter that sent as
    // fast as it could would send thousands.
    EXPECT_GE(bytes.size(), 45u);
    EXPECT_LE(bytes.size(), 135u);
    EXPECT_NE((capture + capture + capture + capture + capture + capture).find(bytes.substr(0, 40)),
        std::string::npos)
        << bytes;

    ::kill(static_cast<pid_t>(meter.processId()), SIGINT);
    ASSERT_TRUE(meter.waitForFinished(3000));
    EXPECT_EQ(meter.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(meter.exitCode(), 0);
}
