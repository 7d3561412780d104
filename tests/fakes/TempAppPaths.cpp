#include "fakes/TempAppPaths.h"

#include <atomic>
#include <string>
#include <system_error>
#include <unistd.h>

namespace ventrix::fakes {

TempAppPaths::TempAppPaths()
{
    static std::atomic<int> counter { 0 };
    m_directory = std::filesystem::temp_directory_path()
        / ("ventrix-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    std::filesystem::remove_all(m_directory);
    std::filesystem::create_directories(m_directory);
}

TempAppPaths::~TempAppPaths()
{
    std::error_code ignored;
    std::filesystem::permissions(
        m_directory, std::filesystem::perms::owner_all, std::filesystem::perm_options::add, ignored);
    std::filesystem::remove_all(m_directory, ignored);
}

} // namespace ventrix::fakes
