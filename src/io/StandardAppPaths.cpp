#include "io/StandardAppPaths.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <cstdlib>
#include <system_error>

// Set by the build: the installed help relative to the installed bin directory, and the source
// tree's help folder.
#ifndef VENTRIX_HELP_FROM_BIN
#define VENTRIX_HELP_FROM_BIN "../share/ventrix/help"
#endif
#ifndef VENTRIX_SOURCE_HELP_DIR
#define VENTRIX_SOURCE_HELP_DIR ""
#endif

namespace ventrix::io {

namespace {

std::filesystem::path ExecutableDirectory()
{
    // Without an application object there is no reliable executable path: leave it empty.
    if (QCoreApplication::instance() == nullptr)
        return {};
    return std::filesystem::path(QCoreApplication::applicationDirPath().toStdU16String());
}

bool IsDirectory(const std::filesystem::path& path)
{
    std::error_code ignored;
    return !path.empty() && std::filesystem::is_directory(path, ignored);
}

} // namespace

StandardAppPaths::StandardAppPaths()
    : m_directory(Resolve(std::getenv("VENTRIX_DATA_DIR")))
    , m_helpDirectory(ResolveHelp(std::getenv("VENTRIX_HELP_DIR"), ExecutableDirectory(),
          std::filesystem::path(VENTRIX_SOURCE_HELP_DIR)))
{
    std::error_code ignored;
    std::filesystem::create_directories(m_directory, ignored);
}

std::filesystem::path StandardAppPaths::Resolve(const char* overrideDirectory)
{
    if (overrideDirectory != nullptr && *overrideDirectory != '\0')
        return std::filesystem::path(overrideDirectory);
    const QString location = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return std::filesystem::path(location.toStdU16String());
}

std::filesystem::path StandardAppPaths::ResolveHelp(const char* overrideDirectory,
    const std::filesystem::path& executableDirectory, const std::filesystem::path& sourceHelpDirectory)
{
    if (overrideDirectory != nullptr && *overrideDirectory != '\0')
        return std::filesystem::path(overrideDirectory);
    const std::filesystem::path installed = executableDirectory.empty()
        ? std::filesystem::path()
        : (executableDirectory / VENTRIX_HELP_FROM_BIN).lexically_normal();
    if (IsDirectory(installed))
        return installed;
    if (IsDirectory(sourceHelpDirectory))
        return sourceHelpDirectory;
    return installed;
}

} // namespace ventrix::io
