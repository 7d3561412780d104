#include "io/StandardAppPaths.h"
#include "io/SystemClock.h"
#include "io/TestSupport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

namespace ventrix::io {
namespace {

namespace fs = std::filesystem;
using testing::ScopedEnv;

TEST(StandardAppPathsTest, OverrideDirectoryIsUsedAndCreated)
{
    QTemporaryDir root;
    const fs::path wanted = fs::path(root.path().toStdString()) / "nested" / "data";
    ScopedEnv env("VENTRIX_DATA_DIR", wanted.c_str());
    StandardAppPaths paths;
    EXPECT_EQ(paths.ProgramDirectory(), wanted);
    EXPECT_TRUE(fs::is_directory(wanted));
    EXPECT_EQ(paths.SettingsFile(), wanted / "DEFAULT.CFG");
    EXPECT_EQ(paths.SwapFile(), wanted / "BUFFER.SWP");
}

TEST(StandardAppPathsTest, WithoutOverrideUsesThePerUserDataDirectory)
{
    const QString oldName = QCoreApplication::applicationName();
    const QString oldOrganisation = QCoreApplication::organizationName();
    QCoreApplication::setApplicationName(QStringLiteral("Ventrix"));
    QCoreApplication::setOrganizationName(QString());
    const fs::path home = "/nonexistent/ventrix-home";
    {
        ScopedEnv xdg("XDG_DATA_HOME", home.c_str());
        EXPECT_EQ(StandardAppPaths::Resolve(nullptr), home / "Ventrix");
        EXPECT_EQ(StandardAppPaths::Resolve(""), home / "Ventrix");
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
