#pragma once

#include <filesystem>

namespace ventrix::platform {

// Where the program's own files live: the settings file "DEFAULT.CFG", the swap file
// "BUFFER.SWP" and the help file. ProgramDirectory() is also the first directory the file
// dialogs show.
class AppPaths {
public:
    virtual ~AppPaths() = default;
    virtual std::filesystem::path ProgramDirectory() const = 0;

    std::filesystem::path SettingsFile() const { return ProgramDirectory() / "DEFAULT.CFG"; }
    std::filesystem::path SwapFile() const { return ProgramDirectory() / "BUFFER.SWP"; }
    std::filesystem::path HelpFile() const { return ProgramDirectory() / "VENTRIX.HLP"; }
};

} // namespace ventrix::platform
