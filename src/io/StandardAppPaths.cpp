#include "io/StandardAppPaths.h"

#include <QStandardPaths>

#include <cstdlib>
#include <system_error>

namespace ventrix::io {

StandardAppPaths::StandardAppPaths()
    : m_directory(Resolve(std::getenv("VENTRIX_DATA_DIR")))
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

} // namespace ventrix::io
