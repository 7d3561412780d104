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

// The installed help beside the bin directory wins over the source tree's; an override wins over
// both, even when it does not exist; with neither present the installed place is kept.
TEST(StandardAppPathsTest, HelpDirectoryIsOverrideThenInstalledThenSourceTree)
{
    QTemporaryDir root;
    const fs::path prefix = fs::path(root.path().toStdString()) / "usr";
    const fs::path bin = prefix / "bin";
    const fs::path installed = prefix / "share" / "ventrix" / "help";
    const fs::path source = fs::path(root.path().toStdString()) / "src" / "help";
    fs::create_directories(bin);
    struct Case {
        const char* overrideDirectory;
        bool installedExists;
        bool sourceExists;
        fs::path executableDirectory;
        fs::path expected;
    };
    const Case cases[] = {
        { "/elsewhere/help", true, true, bin, "/elsewhere/help" },
        { "", true, true, bin, installed },
        { nullptr, false, true, bin, source },
        { nullptr, false, false, bin, installed },
        { nullptr, true, true, fs::path(), source },
    };
    for (const Case& c : cases) {
        fs::remove_all(installed);
        fs::remove_all(source);
        if (c.installedExists)
            fs::create_directories(installed);
        if (c.sourceExists)
            fs::create_directories(source);
        EXPECT_EQ(
            StandardAppPaths::ResolveHelp(c.overrideDirectory, c.executableDirectory, source), c.expected)
            << (c.overrideDirectory ? c.overrideDirectory : "(none)") << " " << c.installedExists
            << c.sourceExists;
    }
}

// A test binary is not installed: it finds the source tree's help, which holds the start page.
TEST(StandardAppPathsTest, BuildTreeProgramFindsSourceTreeHelp)
{
    ScopedEnv env("VENTRIX_HELP_DIR", nullptr);
    StandardAppPaths paths;
    EXPECT_TRUE(fs::exists(paths.HelpDirectory() / "contents.txt")) << paths.HelpDirectory();
}

} // namespace
} // namespace ventrix::io
