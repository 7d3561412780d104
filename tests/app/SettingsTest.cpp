#include "app/Settings.h"

#include "fakes/TestRig.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace ventrix::app {
namespace {

using Bytes = std::vector<std::uint8_t>;

// A program directory that does not exist: nothing can be created in it.
class MissingDirectory : public platform::AppPaths {
public:
    std::filesystem::path ProgramDirectory() const override { return "/nonexistent-ventrix-dir/sub"; }
};

class SettingsTest : public ::testing::Test {
protected:
    Settings MakeSettings(const platform::AppPaths& paths)
    {
        return Settings(rig.state, rig.controls, rig.graph, paths, [this] { ++gaugeUpdates; });
    }

    void WriteFile(const Bytes& bytes)
    {
        std::ofstream file(rig.paths.SettingsFile(), std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }

    Bytes ReadFile() const
    {
        std::ifstream file(rig.paths.SettingsFile(), std::ios::binary);
        return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

    // Index of the one checked item of a group, -1 when none or more than one is checked.
    template <std::size_t N> static int CheckedIndex(const std::array<platform::MenuItem, N>& items)
    {
        int found = -1;
        for (std::size_t i = 0; i < N; ++i) {
            if (items[i].Checked()) {
                if (found >= 0)
                    return -1;
                found = static_cast<int>(i);
            }
        }
        return found;
    }

    fakes::TestRig rig;
    Settings settings { MakeSettings(rig.paths) };
    int gaugeUpdates = 0;
};

struct LoadCase {
    const char* name;
    std::optional<Bytes> file; // nothing: no file at all
    int port;
    double intervalMs;
    int secIndex;
    int width;
    int lineStyle;
    int lineIndex;
    int pointStyle;
    int pointIndex;
    bool fill;
    bool grid;
};

TEST_F(SettingsTest, LoadAppliesEachByteOrItsFallback)
{
    const LoadCase cases[] = {
        { "no file", std::nullopt, 1, 1000, 0, 0, 1, 0, 0, 0, false, true },
        { "all set", Bytes { 2, 10, 3, 2, 3, 1, 0 }, 2, 10000, 3, 3, 4, 2, 22, 3, true, false },
        { "last of each", Bytes { 4, 60, 5, 4, 6, 0, 1 }, 4, 60000, 5, 5, 6, 4, 16, 6, false, true },
        { "point codes out of order", Bytes { 3, 5, 1, 1, 5, 0, 0 }, 3, 5000, 2, 1, 2, 1, 3, 5, false,
            false },
        { "rate 3 s is no menu rate", Bytes { 1, 3, 0, 0, 0, 0, 1 }, 1, 1000, 0, 0, 1, 0, 0, 0, false, true },
        { "every byte out of range", Bytes { 0, 0, 6, 5, 7, 255, 2 }, 1, 1000, 0, 0, 1, 0, 0, 0, true, true },
        { "port 5, rate 59", Bytes { 5, 59, 2, 3, 4, 0, 0 }, 1, 1000, 0, 2, 5, 3, 6, 4, false, false },
        { "longer file: first seven bytes", Bytes { 2, 2, 1, 1, 1, 0, 0, 9, 9, 9 }, 2, 2000, 1, 1, 2, 1, 1, 1,
            false, false },
        { "short file reads spaces", Bytes { 3, 30 }, 3, 30000, 4, 0, 1, 0, 0, 0, true, true },
        { "empty file reads spaces", Bytes {}, 1, 1000, 0, 0, 1, 0, 0, 0, true, true },
    };
    for (const LoadCase& c : cases) {
        SCOPED_TRACE(c.name);
        rig.state = AppState {};
        std::filesystem::remove(rig.paths.SettingsFile());
        if (c.file)
            WriteFile(*c.file);
        // Start from a state that differs from every expectation's defaults.
        rig.state.ComPortNumber = 3;
        rig.state.SampleIntervalMs = 30000;
        rig.graph.lineWidth = 4;

        settings.LoadSettings();

        EXPECT_EQ(rig.state.ComPortNumber, c.port);
        EXPECT_EQ(CheckedIndex(rig.controls.COM_ITEMS), c.port - 1);
        EXPECT_EQ(rig.state.SampleIntervalMs, c.intervalMs);
        EXPECT_EQ(CheckedIndex(rig.controls.SEC_ITEMS), c.secIndex);
        EXPECT_EQ(rig.graph.lineWidth, c.width);
        EXPECT_EQ(CheckedIndex(rig.controls.WIDTH_ITEMS), c.width);
        EXPECT_EQ(rig.graph.lineStyle, c.lineStyle);
        EXPECT_EQ(CheckedIndex(rig.controls.STYLE_ITEMS), c.lineIndex);
        EXPECT_EQ(rig.graph.pointStyle, c.pointStyle);
        EXPECT_EQ(CheckedIndex(rig.controls.POINT_ITEMS), c.pointIndex);
        EXPECT_EQ(rig.graph.fill, c.fill);
        EXPECT_EQ(rig.controls.FILL.Checked(), c.fill);
        EXPECT_EQ(rig.controls.Grid.Checked(), c.grid);
        EXPECT_EQ(rig.graph.xAxis.majorGrid, c.grid);
        EXPECT_EQ(rig.graph.yAxis.majorGrid, c.grid);
    }
}

TEST_F(SettingsTest, LoadSetsTheGridOfTheAmplitudeAxisFirst)
{
    WriteFile({ 1, 1, 0, 0, 0, 0, 1 });
    settings.LoadSettings();
    ASSERT_GE(rig.graph.calls.size(), 2u);
    EXPECT_EQ(rig.graph.calls[rig.graph.calls.size() - 2], "GridY=1");
    EXPECT_EQ(rig.graph.calls.back(), "GridX=1");
}

TEST_F(SettingsTest, UnreadableFileGivesEveryDefault)
{
    // A directory where the file should be cannot be read: the error path applies all
    // defaults, including width 0 rather than the menu's designed WIDTH3.
    std::filesystem::create_directory(rig.paths.SettingsFile());
    rig.state.ComPortNumber = 4;
    settings.LoadSettings();
    EXPECT_EQ(rig.state.ComPortNumber, 1);
    EXPECT_EQ(rig.state.SampleIntervalMs, 1000.0);
    EXPECT_EQ(rig.graph.lineWidth, 0);
    EXPECT_TRUE(rig.controls.WIDTH_ITEMS[0].Checked());
    EXPECT_FALSE(rig.controls.WIDTH_ITEMS[3].Checked());
    EXPECT_TRUE(rig.controls.Grid.Checked());
    EXPECT_FALSE(rig.controls.FILL.Checked());
}

struct RoundTripCase {
    const char* name;
    Bytes before;
    Bytes after;
};

TEST_F(SettingsTest, SaveWritesBackWhatWasLoaded)
{
    const RoundTripCase cases[] = {
        { "complete file", { 2, 10, 3, 2, 3, 1, 0 }, { 2, 10, 3, 2, 3, 1, 0 } },
        { "fill 255 saved as 1", { 1, 1, 0, 0, 0, 255, 1 }, { 1, 1, 0, 0, 0, 1, 1 } },
        { "fallbacks saved as applied", { 9, 3, 9, 9, 9, 0, 0 }, { 1, 1, 0, 0, 0, 0, 0 } },
        { "tail beyond seven bytes kept", { 4, 60, 5, 4, 6, 0, 1, 0xAA, 0xBB },
            { 4, 60, 5, 4, 6, 0, 1, 0xAA, 0xBB } },
        { "tail kept after changed fields", { 9, 9, 9, 9, 9, 9, 9, 7 }, { 1, 1, 0, 0, 0, 1, 1, 7 } },
    };
    for (const RoundTripCase& c : cases) {
        SCOPED_TRACE(c.name);
        WriteFile(c.before);
        settings.LoadSettings();
        settings.SaveSettings();
        EXPECT_EQ(ReadFile(), c.after);
    }
}

TEST_F(SettingsTest, SaveWithoutFileCreatesTheDefaults)
{
    settings.LoadSettings();
    settings.SaveSettings();
    EXPECT_EQ(ReadFile(), (Bytes { 1, 1, 0, 0, 0, 0, 1 }));
}

TEST_F(SettingsTest, FillAndGridAreSavedFromTheMenuNotTheGraph)
{
    settings.LoadSettings();
    rig.controls.FILL.SetChecked(true);
    rig.controls.Grid.SetChecked(false);
    rig.graph.fill = false;
    rig.graph.xAxis.majorGrid = rig.graph.yAxis.majorGrid = true;
    settings.SaveSettings();
    EXPECT_EQ(ReadFile(), (Bytes { 1, 1, 0, 0, 0, 1, 0 }));
}

TEST_F(SettingsTest, UnmappedValuesShortenTheFileAndShiftLaterFields)
{
    struct Case {
        const char* name;
        double intervalMs;
        int lineStyle;
        int pointStyle;
        Bytes after; // over a previous file of seven 9s
    };
    const Case cases[] = {
        { "line style 3", 1000, 3, 0, { 1, 1, 0, 0, 0, 1, 9 } },
        { "point style 4", 1000, 1, 4, { 1, 1, 0, 0, 0, 1, 9 } },
        { "interval 3000 ms", 3000, 1, 0, { 1, 0, 0, 0, 0, 1, 9 } },
        { "all three unmapped", 1500, 7, 5, { 1, 0, 0, 1, 9, 9, 9 } },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        WriteFile(Bytes(7, 9));
        rig.state.ComPortNumber = 1;
        rig.state.SampleIntervalMs = c.intervalMs;
        rig.graph.lineWidth = 0;
        rig.graph.lineStyle = c.lineStyle;
        rig.graph.pointStyle = c.pointStyle;
        rig.controls.FILL.SetChecked(false);
        rig.controls.Grid.SetChecked(true);
        settings.SaveSettings();
        EXPECT_EQ(ReadFile(), c.after);
    }

    // The shifted file still loads: the range checks absorb the misplaced bytes.
    WriteFile({ 1, 1, 0, 0, 0, 1, 9 });
    settings.LoadSettings();
    EXPECT_EQ(rig.graph.lineStyle, 1);
    EXPECT_EQ(rig.graph.pointStyle, 0);
    EXPECT_TRUE(rig.controls.FILL.Checked());
    EXPECT_TRUE(rig.controls.Grid.Checked());
}

TEST_F(SettingsTest, SaveFailsSilentlyAndLeavesTheOldFile)
{
    // A port or width that cannot be one byte: nothing is written.
    WriteFile({ 2, 2, 2, 2, 2, 0, 0 });
    rig.graph.lineWidth = 300;
    settings.SaveSettings();
    EXPECT_EQ(ReadFile(), (Bytes { 2, 2, 2, 2, 2, 0, 0 }));

    // A directory where the file should be.
    std::filesystem::remove(rig.paths.SettingsFile());
    std::filesystem::create_directory(rig.paths.SettingsFile());
    rig.graph.lineWidth = 1;
    settings.SaveSettings();
    EXPECT_TRUE(std::filesystem::is_directory(rig.paths.SettingsFile()));

    // A program directory in which nothing can be created.
    MissingDirectory missing;
    Settings elsewhere = MakeSettings(missing);
    elsewhere.SaveSettings();
    elsewhere.LoadSettings();
    EXPECT_FALSE(std::filesystem::exists(missing.SettingsFile()));
    EXPECT_EQ(rig.state.ComPortNumber, 1);
}

TEST_F(SettingsTest, SaveIntoReadOnlyDirectoryIsSilent)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "permissions do not bind the superuser";
    std::filesystem::permissions(rig.paths.ProgramDirectory(),
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    settings.SaveSettings();
    EXPECT_FALSE(std::filesystem::exists(rig.paths.SettingsFile()));
}

TEST_F(SettingsTest, MenuGroupsKeepExactlyOneCheckMark)
{
    const int ports[] = { 3, 1, 4, 4, 2 };
    for (int port : ports) {
        settings.SelectComPort(port);
        EXPECT_EQ(rig.state.ComPortNumber, port);
        EXPECT_EQ(CheckedIndex(rig.controls.COM_ITEMS), port - 1);
    }
    const std::pair<int, int> rates[] = { { 60, 5 }, { 2, 1 }, { 30, 4 }, { 1, 0 }, { 10, 3 }, { 5, 2 } };
    int updates = 0;
    for (const auto& [seconds, index] : rates) {
        settings.SelectSampleRate(seconds);
        EXPECT_EQ(rig.state.SampleIntervalMs, seconds * 1000.0);
        EXPECT_EQ(CheckedIndex(rig.controls.SEC_ITEMS), index);
        EXPECT_EQ(gaugeUpdates, ++updates) << "the memory gauge follows every rate change";
    }
}

} // namespace
} // namespace ventrix::app
