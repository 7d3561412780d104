#pragma once

#include <filesystem>
#include <string>

namespace ventrix::io {

// Where the export puts a new workbook so that the user finds it: the user's documents folder,
// or `fallbackDirectory` (the program's data directory) when VENTRIX_DATA_DIR is set or there is
// no documents folder. The name carries the moment of the export, "Ventrix export 2026-11-21
// 22.05.09.xlsx", with " (2)", " (3)" ... when that name is taken.
class WorkbookPath {
public:
    static std::filesystem::path NewWorkbook(const std::filesystem::path& fallbackDirectory);
    // The first free name for the stamp in the directory.
    static std::filesystem::path FreeName(const std::filesystem::path& directory, const std::string& stamp);
};

} // namespace ventrix::io
