#pragma once

#include "platform/AppPaths.h"

#include <filesystem>
#include <utility>

namespace ventrix::cli {

// The program's files in a directory the user named (--dir): settings, swap file and journal.
class DirectoryPaths : public platform::AppPaths {
public:
    explicit DirectoryPaths(std::filesystem::path directory)
        : m_directory(std::move(directory))
    {
    }
    std::filesystem::path ProgramDirectory() const override { return m_directory; }

private:
    std::filesystem::path m_directory;
};

} // namespace ventrix::cli
