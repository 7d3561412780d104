#pragma once

#include "platform/AppPaths.h"

#include <filesystem>

namespace ventrix::io {

// The program's own files (settings, swap file, help) live in a per-user data directory, so the
// program runs from a read-only install: QStandardPaths' application data location (for the
// application name "Ventrix": ~/.local/share/Ventrix, %APPDATA%\Ventrix). When the environment
// variable VENTRIX_DATA_DIR is set and not empty it is used instead (developers and tests). The
// directory is created when missing; if that fails the path is kept and the file routines take
// their own error paths.
class StandardAppPaths : public platform::AppPaths {
public:
    StandardAppPaths();

    std::filesystem::path ProgramDirectory() const override { return m_directory; }

    // The directory chosen for the given override (empty: none) without creating it.
    static std::filesystem::path Resolve(const char* overrideDirectory);

private:
    std::filesystem::path m_directory;
};

} // namespace ventrix::io
