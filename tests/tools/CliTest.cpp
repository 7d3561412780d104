#include "ventrix-cli/FrameEncoder.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>

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
        { { "meter", "--frames" }, "Missing value" },
        { { "meter", "--loud" }, "Unknown option" },
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
