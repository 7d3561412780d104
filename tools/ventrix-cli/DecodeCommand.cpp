#include "Commands.h"

#include "link/CaptureReplay.h"
#include "ventrix-cli/CaptureJson.h"
#include "ventrix-cli/InputFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace ventrix::cli {

namespace {

int Fail(const std::string& message)
{
    std::fprintf(stderr, "ventrix-cli decode: %s\n", message.c_str());
    return 2;
}

} // namespace

int RunDecode(int argc, char** argv)
{
    if (argc > 1)
        return Fail("expected at most one FILE");
    std::string bytes;
    std::string error;
    if (!ReadInputFile(argc == 1 ? argv[0] : "-", bytes, error))
        return Fail(error);

    link::CaptureReplay replay;
    replay.Run(bytes, [](const link::CaptureReplay::Frame& frame) {
        const std::string line = CaptureFrameJson(frame);
        std::fwrite(line.data(), 1, line.size(), stdout);
        std::fputc('\n', stdout);
    });
    if (std::fflush(stdout) != 0)
        return Fail(std::string("cannot write: ") + std::strerror(errno));
    return 0;
}

} // namespace ventrix::cli
