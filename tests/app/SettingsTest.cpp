#include "app/Settings.h"

#include "app/SettingsFileBytes.h"
#include "fakes/TestRig.h"
#include "graph/PlotAppearance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace ventrix::app {
namespace {

// What a load applied: port, seconds, width, line-style code, point-style code, fill, grid.
using Applied = std::array<int, 7>;

struct SettingsTest : ::testing::Test {
    void Write(const Bytes& bytes) { WriteBytes(rig.paths.SettingsFile(), bytes); }
    Bytes Read() const { return ReadBytes(rig.paths.SettingsFile()); }
    template <std::size_t N>
    static int Checked(const std::array<platform::MenuItem, N>& items) // the one checked, else -1
    {
        const auto first
            = std::find_if(items.begin(), items.end(), [](auto& item) { return item.Checked(); });
        const auto count
            = std::count_if(items.begin(), items.end(), [](auto& item) { return item.Checked(); });
        return count == 1 ? static_cast<int>(first - items.begin()) : -1;
    }
    Applied Current() const
    {
        const auto& c = rig.controls;
        // Menus and graph must agree: each group's one check mark sits on the applied value.
        EXPECT_EQ(Checked(c.COM_ITEMS), rig.state.ComPortNumber - 1);
        EXPECT_EQ(Checked(c.WIDTH_ITEMS), rig.graph.lineWidth);
        EXPECT_EQ(
            graph::kLineStyleCodes.at(static_cast<std::size_t>(Checked(c.STYLE_ITEMS))), rig.graph.lineStyle);
        EXPECT_EQ(graph::kPointStyleCodes.at(static_cast<std::size_t>(Checked(c.POINT_ITEMS))),
            rig.graph.pointStyle);
        EXPECT_EQ(kSampleRateSeconds.at(static_cast<std::size_t>(Checked(c.SEC_ITEMS))) * 1000.0,
            rig.state.SampleIntervalMs);
        EXPECT_EQ(c.FILL.Checked(), rig.graph.fill);
        EXPECT_EQ(c.Grid.Checked(), rig.graph.xAxis.majorGrid);
        EXPECT_EQ(c.Grid.Checked(), rig.graph.yAxis.majorGrid);
        return { rig.state.ComPortNumber, static_cast<int>(rig.state.SampleIntervalMs / 1000),
            rig.graph.lineWidth, rig.graph.lineStyle, rig.graph.pointStyle, c.FILL.Checked(),
            c.Grid.Checked() };
    }

    fakes::TestRig rig;
    Settings settings { rig.state, rig.controls, rig.graph, rig.paths, [] {} };
};

TEST_F(SettingsTest, LoadThenSave)
{
    struct Case {
        const char* name;
        std::optional<Bytes> before; // nothing: no file
        Applied applied;
        Bytes after;
    };
    const Case cases[] = {
        { "no file: defaults", std::nullopt, { 1, 1, 0, 1, 0, 0, 1 }, { 1, 1, 0, 0, 0, 0, 1 } },
        { "every field set", Bytes { 2, 10, 3, 2, 3, 1, 0 }, { 2, 10, 3, 4, 22, 1, 0 },
            { 2, 10, 3, 2, 3, 1, 0 } },
        { "rate 3 s is no menu rate", Bytes { 1, 3, 0, 0, 0, 0, 1 }, { 1, 1, 0, 1, 0, 0, 1 },
            { 1, 1, 0, 0, 0, 0, 1 } },
        { "fill 255 is on, saved as 1", Bytes { 1, 1, 0, 0, 0, 255, 1 }, { 1, 1, 0, 1, 0, 1, 1 },
            { 1, 1, 0, 0, 0, 1, 1 } },
        { "each byte just out of range", Bytes { 5, 59, 6, 5, 7, 0, 2 }, { 1, 1, 0, 1, 0, 0, 1 },
            { 1, 1, 0, 0, 0, 0, 1 } },
        { "longer file keeps its tail", Bytes { 9, 9, 9, 9, 9, 9, 9, 0xAA, 0xBB }, { 1, 1, 0, 1, 0, 1, 1 },
            { 1, 1, 0, 0, 0, 1, 1, 0xAA, 0xBB } },
        { "short file reads spaces", Bytes { 3, 30 }, { 3, 30, 0, 1, 0, 1, 1 }, { 3, 30, 0, 0, 0, 1, 1 } },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::filesystem::remove(rig.paths.SettingsFile());
        if (c.before)
            Write(*c.before);
        rig.state.ComPortNumber = 3; // differs from every default
        rig.state.SampleIntervalMs = 30000;
        rig.graph.lineWidth = 4;
        settings.LoadSettings();
        EXPECT_EQ(Current(), c.applied);
        settings.SaveSettings();
        EXPECT_EQ(Read(), c.after);
    }
    // The grid of the amplitude axis is written before the sample axis.
    const auto& calls = rig.graph.calls;
    EXPECT_EQ(std::vector<std::string>(calls.end() - 2, calls.end()),
        (std::vector<std::string> { "GridY=1", "GridX=1" }));
}

TEST_F(SettingsTest, UnmappedValuesShortenTheFileAndShiftLaterFields)
{
    struct Case {
        double intervalMs;
        int lineStyle;
        int pointStyle;
        Bytes after; // over seven 9s
    };
    const Case cases[] = { { 1000, 3, 0, { 1, 1, 0, 0, 0, 1, 9 } }, { 1000, 1, 4, { 1, 1, 0, 0, 0, 1, 9 } },
        { 3000, 1, 0, { 1, 0, 0, 0, 0, 1, 9 } }, { 1500, 7, 5, { 1, 0, 0, 1, 9, 9, 9 } } };
    settings.LoadSettings(); // port 1, width 0, fill off, grid on
    for (const Case& c : cases) {
        Write(Bytes(7, 9));
        rig.state.SampleIntervalMs = c.intervalMs;
        rig.graph.lineStyle = c.lineStyle;
        rig.graph.pointStyle = c.pointStyle;
        settings.SaveSettings();
        EXPECT_EQ(Read(), c.after) << c.intervalMs << " " << c.lineStyle << " " << c.pointStyle;
    }
    // The reader's fallbacks absorb the shift: fill and grid come from misplaced bytes.
    Write({ 1, 1, 0, 0, 0, 1, 9 });
    settings.LoadSettings();
    EXPECT_EQ(Current(), (Applied { 1, 1, 0, 1, 0, 1, 1 }));
}

TEST_F(SettingsTest, FailuresAreSilent)
{
    // Unreadable (a directory where the file should be): every default, width 0 not WIDTH3.
    std::filesystem::create_directory(rig.paths.SettingsFile());
    rig.state.ComPortNumber = 4;
    settings.LoadSettings();
    EXPECT_EQ(Current(), (Applied { 1, 1, 0, 1, 0, 0, 1 }));
    settings.SaveSettings();
    EXPECT_TRUE(std::filesystem::is_directory(rig.paths.SettingsFile()));

    // A width that is no byte: the old file stays as it was.
    std::filesystem::remove(rig.paths.SettingsFile());
    Write({ 2, 2, 2, 2, 2, 0, 0 });
    rig.graph.lineWidth = 300;
    settings.SaveSettings();
    EXPECT_EQ(Read(), (Bytes { 2, 2, 2, 2, 2, 0, 0 }));
}

TEST_F(SettingsTest, MenuGroupsKeepOneCheckMark)
{
    settings.LoadSettings();
    settings.SelectComPort(3);
    settings.SelectSampleRate(30);
    EXPECT_EQ(Current(), (Applied { 3, 30, 0, 1, 0, 0, 1 }));
}

} // namespace
} // namespace ventrix::app
