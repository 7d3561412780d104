#include "Commands.h"

#include "link/CaptureReplay.h"
#include "ventrix-cli/CaptureJson.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <sys/stat.h>

namespace ventrix::cli {

namespace {

bool ReadAll(std::FILE* file, std::string& bytes)
{
    char buffer[65536];
    std::size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0)
        bytes.append(buffer, n);
    return !std::ferror(file);
}

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
    if (argc == 1 && std::strcmp(argv[0], "-") != 0) {
        const char* path = argv[0];
        struct stat info { };
        if (::stat(path, &info) != 0)
            return Fail(std::string("cannot read ") + path + ": " + std::strerror(errno));
        if (S_ISDIR(info.st_mode))
            return Fail(std::string("cannot read ") + path + ": is a directory");
        std::FILE* file = std::fopen(path, "rb");
        if (file == nullptr)
            return Fail(std::string("cannot read ") + path + ": " + std::strerror(errno));
        const bool ok = ReadAll(file, bytes);
        const int error = errno;
        std::fclose(file);
        if (!ok)
            return Fail(std::string("cannot read ") + path + ": " + std::strerror(error));
    } else if (!ReadAll(stdin, bytes)) {
        return Fail(std::string("cannot read standard input: ") + std::strerror(errno));
    }

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
