#include "ventrix-cli/InputFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
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

} // namespace

bool ReadInputFile(const std::string& path, std::string& bytes, std::string& error)
{
    if (path == "-") {
        if (ReadAll(stdin, bytes))
            return true;
        error = std::string("cannot read standard input: ") + std::strerror(errno);
        return false;
    }
    struct stat info { };
    if (::stat(path.c_str(), &info) != 0) {
        error = "cannot read " + path + ": " + std::strerror(errno);
        return false;
    }
    if (S_ISDIR(info.st_mode)) {
        error = "cannot read " + path + ": is a directory";
        return false;
    }
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        error = "cannot read " + path + ": " + std::strerror(errno);
        return false;
    }
    const bool ok = ReadAll(file, bytes);
    const int readError = errno;
    std::fclose(file);
    if (!ok)
        error = "cannot read " + path + ": " + std::strerror(readError);
    return ok;
}

} // namespace ventrix::cli
