#include "io/StandardAppPaths.h"
#include "io/SystemClock.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <unistd.h>

namespace ventrix::io {
namespace {

namespace fs = std::filesystem;

// Sets or clears an environment variable for one test and puts the old value back.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const char* value)
        : m_name(name)
    {
        if (const char* old = std::getenv(name))
            m_old = old;
        if (value != nullptr)
            setenv(name, value, 1);
        else
            unsetenv(name);
    }
    ~ScopedEnv()
    {
        if (m_old)
            setenv(m_name, m_old->c_str(), 1);
        else
            unsetenv(m_name);
    }

private:
    const char* m_name;
    std::optional<std::string> m_old;
};

TEST(StandardAppPathsTest, OverrideDirectoryIsUsedAndCreated)
{
    const fs::path root = fs::temp_directory_path() / ("ventrix-paths-" + std::to_string(::getpid()));
    fs::remove_all(root);
    const fs::path wanted = root / "nested" / "data";
    {
        ScopedEnv env("VENTRIX_DATA_DIR", wanted.c_str());
        StandardAppPaths paths;
        EXPECT_EQ(paths.ProgramDirectory(), wanted);
        EXPECT_TRUE(fs::is_directory(wanted));
        EXPECT_EQ(paths.SettingsFile(), wanted / "DEFAULT.CFG");
        EXPECT_EQ(paths.SwapFile(), wanted / "BUFFER.SWP");
    }
    fs::remove_all(root);
}

TEST(StandardAppPathsTest, WithoutOverrideUsesThePerUserDataDirectory)
{
    const QString oldName = QCoreApplication::applicationName();
    const QString oldOrganisation = QCoreApplication::organizationName();
    QCoreApplication::setApplicationName(QStringLiteral("Ventrix"));
    QCoreApplication::setOrganizationName(QString());
    const fs::path home = fs::temp_directory_path() / ("ventrix-home-" + std::to_string(::getpid()));
    {
        ScopedEnv xdg("XDG_DATA_HOME", home.c_str());
        for (const char* empty : { static_cast<const char*>(nullptr), "" }) {
            const fs::path chosen = StandardAppPaths::Resolve(empty);
            EXPECT_EQ(chosen, home / "Ventrix");
        }
    }
    QCoreApplication::setApplicationName(oldName);
    QCoreApplication::setOrganizationName(oldOrganisation);
}

TEST(SystemClockTest, TimeOfDayAndSecondsAgree)
{
    SystemClock clock;
    const double fraction = clock.TimeOfDay();
    const double seconds = clock.SecondsSinceMidnight();
    ASSERT_GE(fraction, 0.0);
    ASSERT_LT(fraction, 1.0);
    // Read a moment apart; around midnight the two may straddle it.
    const double apart = std::fabs(fraction * 86400.0 - seconds);
    EXPECT_TRUE(apart < 1.0 || apart > 86399.0) << fraction << " vs " << seconds;
    EXPECT_FALSE(clock.DateText().empty());
}

} // namespace
} // namespace ventrix::io
