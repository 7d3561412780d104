#include "io/StandardAppPaths.h"
#include "io/TestSupport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

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

} // namespace
} // namespace ventrix::io
