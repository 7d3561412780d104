#pragma once

#include <filesystem>

namespace ventrix::platform {

// Where the program's files live. ProgramDirectory() is the per-user, writable directory of the
// settings file "DEFAULT.CFG", the swap file "BUFFER.SWP" and the help file; it is also the first
// directory the file dialogs show. HelpDirectory() is the read-only help that ships with the
// program (an installed package's share directory); it only says where, nothing is read here.
class AppPaths {
public:
    virtual ~AppPaths() = default;
    virtual std::filesystem::path ProgramDirectory() const = 0;
    // Locations without an installation of their own keep the help beside their other files.
    virtual std::filesystem::path HelpDirectory() const { return ProgramDirectory() / "help"; }

    std::filesystem::path SettingsFile() const { return ProgramDirectory() / "DEFAULT.CFG"; }
    std::filesystem::path SwapFile() const { return ProgramDirectory() / "BUFFER.SWP"; }
    // The crash journal of the memory page, beside the swap file.
    std::filesystem::path JournalFile() const { return ProgramDirectory() / "BUFFER.JNL"; }
    std::filesystem::path HelpFile() const { return ProgramDirectory() / "VENTRIX.HLP"; }
};

} // namespace ventrix::platform
