#include "io/WorkbookPath.h"

#include <QDateTime>
#include <QStandardPaths>

#include <cstdlib>
#include <system_error>

namespace ventrix::io {

std::filesystem::path WorkbookPath::NewWorkbook(const std::filesystem::path& fallbackDirectory)
{
    std::filesystem::path directory = fallbackDirectory;
    const char* dataOverride = std::getenv("VENTRIX_DATA_DIR");
    if (dataOverride == nullptr || *dataOverride == '\0') {
        const std::filesystem::path documents
            = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdU16String();
        std::error_code error;
        if (!documents.empty()) {
            std::filesystem::create_directories(documents, error);
            if (!error)
                directory = documents;
        }
    }
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh.mm.ss"));
    return FreeName(directory, stamp.toStdString());
}

std::filesystem::path WorkbookPath::FreeName(const std::filesystem::path& directory, const std::string& stamp)
{
    const std::string base = "Ventrix export " + stamp;
    std::filesystem::path path = directory / (base + ".xlsx");
    for (int n = 2; std::filesystem::exists(path); ++n)
        path = directory / (base + " (" + std::to_string(n) + ").xlsx");
    return path;
}

} // namespace ventrix::io
