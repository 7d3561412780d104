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
//
// The help that ships with the program is found, in this order: the environment variable
// VENTRIX_HELP_DIR; the installed share/ventrix/help next to the executable's bin directory; the
// source tree's help/ (a program run from its build tree). Nothing is created there.
class StandardAppPaths : public platform::AppPaths {
public:
    StandardAppPaths();

    std::filesystem::path ProgramDirectory() const override { return m_directory; }
    std::filesystem::path HelpDirectory() const override { return m_helpDirectory; }

    // The directory chosen for the given override (empty: none) without creating it.
    static std::filesystem::path Resolve(const char* overrideDirectory);

    // The help directory for the given override (null or empty: none), the executable's
    // directory and the source tree's help folder: the override as given, else the first of the
    // installed and the source-tree folder that exists, else the installed one.
    static std::filesystem::path ResolveHelp(const char* overrideDirectory,
        const std::filesystem::path& executableDirectory, const std::filesystem::path& sourceHelpDirectory);

private:
    std::filesystem::path m_directory;
    std::filesystem::path m_helpDirectory;
};

} // namespace ventrix::io
