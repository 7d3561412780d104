#pragma once

#include <QLockFile>

#include <filesystem>
#include <memory>
#include <string>

namespace ventrix::io {

// One logger per data directory: the window and `ventrix-cli log` hold a lock file ("ventrix.lock")
// in the directory while they run, so two of them never write the same swap file. A lock left by
// a process that no longer runs is taken over. The lock is released when the object goes.
class DataDirectoryLock {
public:
    explicit DataDirectoryLock(const std::filesystem::path& directory);

    // True when this process now holds the directory (or already did).
    bool TryLock();
    // The refusal shown when another logger holds it, naming the directory.
    std::string RefusalMessage() const;

private:
    std::filesystem::path m_directory;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace ventrix::io
