#include "io/DataDirectoryLock.h"

#include <QSysInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace ventrix::io {
namespace {

TEST(DataDirectoryLockTest, SecondLoggerIsRefusedAndAStaleLockIsTakenOver)
{
    QTemporaryDir root;
    const std::filesystem::path dir = root.path().toStdString();
    {
        DataDirectoryLock first(dir);
        DataDirectoryLock second(dir);
        ASSERT_TRUE(first.TryLock());
        EXPECT_FALSE(second.TryLock());
        EXPECT_EQ(
            second.RefusalMessage(), "Ventrix is already running with this data directory: " + dir.string());
    }
    // A lock left by a process that is gone (a crash): pid, application, host.
    std::ofstream(dir / "ventrix.lock") << "2147480000\nventrix\n"
                                        << QSysInfo::machineHostName().toStdString() << "\n";
    DataDirectoryLock after(dir);
    EXPECT_TRUE(after.TryLock());
}

} // namespace
} // namespace ventrix::io
