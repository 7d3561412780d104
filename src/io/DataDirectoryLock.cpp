#include "io/DataDirectoryLock.h"

#include <QString>

namespace ventrix::io {

DataDirectoryLock::DataDirectoryLock(const std::filesystem::path& directory)
    : m_directory(directory)
    , m_lock(std::make_unique<QLockFile>(QString::fromStdString((directory / "ventrix.lock").string())))
{
    // Staleness by age is off: a logger runs for days. A lock whose process is gone is still
    // recognised as stale by its process id and taken over.
    m_lock->setStaleLockTime(0);
}

bool DataDirectoryLock::TryLock()
{
    return m_lock->isLocked() || m_lock->tryLock(0);
}

std::string DataDirectoryLock::RefusalMessage() const
{
    return "Ventrix is already running with this data directory: " + m_directory.string();
}

} // namespace ventrix::io
