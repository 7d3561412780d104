#include "Commands.h"

#include "app/SettingsBytes.h"
#include "io/DataDirectoryLock.h"
#include "io/StandardAppPaths.h"
#include "ventrix-cli/CommandLine.h"
#include "ventrix-cli/Duration.h"
#include "ventrix-cli/LogSession.h"
#include "ventrix-cli/SignalPipe.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <system_error>

namespace ventrix::cli {

namespace {

const char kDescription[]
    = "Logs from the meter without a window, exactly as the program does: the port opened at\n"
      "4800,n,8,1, one sample per interval, the 432,000-sample log with its swap file BUFFER.SWP\n"
      "and its journal BUFFER.JNL in DIR. Each sample's line (as in the data log window) goes to\n"
      "standard output as it is taken. Logging ends after --samples or --duration, on Ctrl-C\n"
      "(SIGINT), SIGTERM or SIGHUP, or when the log is full; then --text and --xlsx are written\n"
      "with the whole log, byte for byte what the program's Save and Export to Excel write.";

const char kEpilogue[]
    = "When the meter is silent for 15 s, the program's question goes to standard error, answered\n"
      "Yes: logging keeps waiting. A progress line (samples logged, time left) is kept on\n"
      "standard error when it is a terminal. One logger per data directory: a second one, the\n"
      "program included, is refused while this one runs. After a crash or a power cut,\n"
      "`ventrix-cli recover` rebuilds the log from DIR.\n"
      "\n"
      "Exit status: 0 logged (files written), 1 a file could not be written, 2 bad options, the\n"
      "port cannot be opened or DIR is in use, 3 the meter is in relative mode.\n"
      "\n"
      "Example, two days at 10 s, then both files:\n"
      "  ventrix-cli log --port /dev/ttyUSB0 --interval 10 --duration 2d --text bench.txt \\\n"
      "      --xlsx bench.xlsx | tee bench.log\n";

} // namespace

int RunLog(int argc, char** argv)
{
    CommandLine args(QStringLiteral("log"), QString::fromUtf8(kDescription), QString::fromUtf8(kEpilogue));
    args.AddOption({ QStringLiteral("port"),
        QStringLiteral("The meter's port: a device path (/dev/ttyUSB0) or COM1 to COM4 as the program maps "
                       "them."),
        QStringLiteral("DEVICE|COMn") });
    args.AddOption({ QStringLiteral("interval"),
        QStringLiteral("Seconds between samples: 1, 2, 5, 10, 30 or 60 (1)."), QStringLiteral("SECONDS") });
    args.AddOption({ QStringLiteral("text"),
        QStringLiteral("At the end, write the log as the program's text file."), QStringLiteral("FILE") });
    args.AddOption({ QStringLiteral("xlsx"),
        QStringLiteral("At the end, write the log as the program's workbook."), QStringLiteral("FILE") });
    args.AddOption(
        { QStringLiteral("samples"), QStringLiteral("Stop after N samples."), QStringLiteral("N") });
    args.AddOption({ QStringLiteral("duration"),
        QStringLiteral("Stop after this time: seconds, or e.g. 90s, 15m, 2h, 5d, 1h30m."),
        QStringLiteral("TIME") });
    args.AddOption({ QStringLiteral("dir"),
        QStringLiteral("The data directory for the swap file and the journal (the program's own)."),
        QStringLiteral("DIR") });
    if (const auto status = args.Parse(argc, argv))
        return *status;
    if (!args.Positionals().isEmpty())
        return args.Fail("unexpected argument " + args.Positionals().first().toStdString());

    LogOptions options;
    if (!args.IsSet(QStringLiteral("port")))
        return args.Fail("--port is required (see --help)");
    const QString port = args.Value(QStringLiteral("port"));
    options.port = port.toStdString();
    const QRegularExpressionMatch com
        = QRegularExpression(QStringLiteral("^COM([1-4])$"), QRegularExpression::CaseInsensitiveOption)
              .match(port);
    if (com.hasMatch())
        options.comNumber = com.captured(1).toInt();
    else if (!port.contains(QLatin1Char('/')))
        return args.Fail("--port must be a device path or COM1 to COM4, not " + options.port);

    if (args.IsSet(QStringLiteral("interval"))) {
        bool ok = false;
        options.intervalSeconds = args.Value(QStringLiteral("interval")).toInt(&ok);
        const auto& rates = app::kSampleRateSeconds;
        if (!ok || std::find(rates.begin(), rates.end(), options.intervalSeconds) == rates.end())
            return args.Fail("--interval must be 1, 2, 5, 10, 30 or 60, not "
                + args.Value(QStringLiteral("interval")).toStdString());
    }
    if (args.IsSet(QStringLiteral("samples")) && args.IsSet(QStringLiteral("duration")))
        return args.Fail("give --samples or --duration, not both");
    if (args.IsSet(QStringLiteral("samples"))) {
        bool ok = false;
        options.samples = args.Value(QStringLiteral("samples")).toLongLong(&ok);
        if (!ok || options.samples <= 0)
            return args.Fail("--samples must be a number above 0, not "
                + args.Value(QStringLiteral("samples")).toStdString());
    }
    if (args.IsSet(QStringLiteral("duration"))) {
        const std::string text = args.Value(QStringLiteral("duration")).toStdString();
        const std::optional<long long> seconds = ParseDurationSeconds(text);
        if (!seconds)
            return args.Fail("--duration must be a time such as 90, 90s, 15m, 2h, 5d or 1h30m, not " + text);
        options.durationSeconds = *seconds;
    }
    if (const auto text = args.Given(QStringLiteral("text")))
        options.textFile = *text;
    if (const auto xlsx = args.Given(QStringLiteral("xlsx")))
        options.xlsxFile = *xlsx;

    if (args.IsSet(QStringLiteral("dir"))) {
        options.directory = args.Value(QStringLiteral("dir")).toStdString();
        std::error_code error;
        std::filesystem::create_directories(options.directory, error);
        if (error)
            return args.Fail("cannot use " + options.directory.string() + ": " + error.message());
    } else {
        options.directory = io::StandardAppPaths().ProgramDirectory();
    }

    // Two loggers on one data directory would overwrite each other's swap file.
    io::DataDirectoryLock lock(options.directory);
    if (!lock.TryLock())
        return args.Fail(lock.RefusalMessage());

    // A reader of standard output that goes away (`| head`) must not end the log.
    std::signal(SIGPIPE, SIG_IGN);
    LogSession session(options);
    SignalPipe stopSignals({ SIGINT, SIGTERM, SIGHUP }, [&session](int) { session.Finish(0); });
    if (const auto status = session.Start())
        return *status;
    return QCoreApplication::exec();
}

} // namespace ventrix::cli
