#include "Commands.h"

#include "link/CaptureReplay.h"
#include "ventrix-cli/CaptureJson.h"
#include "ventrix-cli/CommandLine.h"
#include "ventrix-cli/InputFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace ventrix::cli {

int RunDecode(int argc, char** argv)
{
    CommandLine args(QStringLiteral("decode"),
        QStringLiteral(
            "Runs a captured byte stream through exactly the program's receive path and decoder\n"
            "and prints one JSON object per line for every accepted frame: its offset, the mode\n"
            "byte, the decoded reading (null for an absent word), whether it was refused (relative\n"
            "mode while an absolute reading is awaited) or would be logged, and the virtual LCD\n"
            "after it. Unreadable input: a one-line error and exit status 2."),
        QStringLiteral("Example:\n  ventrix-cli decode capture.bin | head\n"));
    args.AddPositional(QStringLiteral("FILE"),
        QStringLiteral("The capture (standard input when absent or -)."), QStringLiteral("[FILE]"));
    if (const auto status = args.Parse(argc, argv))
        return *status;
    const QStringList files = args.Positionals();
    if (files.size() > 1)
        return args.Fail("expected at most one FILE");
    std::string bytes;
    std::string error;
    if (!ReadInputFile(files.isEmpty() ? std::string("-") : files.first().toStdString(), bytes, error))
        return args.Fail(error);

    link::CaptureReplay replay;
    replay.Run(bytes, [](const link::CaptureReplay::Frame& frame) {
        const std::string line = CaptureFrameJson(frame);
        std::fwrite(line.data(), 1, line.size(), stdout);
        std::fputc('\n', stdout);
    });
    if (std::fflush(stdout) != 0)
        return args.Fail(std::string("cannot write: ") + std::strerror(errno));
    return 0;
}

} // namespace ventrix::cli
