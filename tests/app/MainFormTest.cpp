#include "app/MainForm.h"

#include "app/SettingsFileBytes.h"
#include "fakes/TestRig.h"

#include <gtest/gtest.h>

#include <tuple>

namespace ventrix::app {
namespace {

struct MainFormTest : ::testing::Test {
    fakes::TestRig rig;
    MainForm form { rig.state, rig.controls, rig.services };
};

// Start-up leaves the window idle, fills the lists once however often it runs, and applies the
// saved settings before it draws the memory bar.
TEST_F(MainFormTest, StartUpLeavesTheWindowIdle)
{
    platform::MainControls& c = rig.controls;
    const auto lcd = { &c.DIGIT_LBL, &c.MODE_LBL, &c.BATTERY_LBL, &c.AUTO_LBL, &c.HOLD_LBL, &c.FUNCTION_LBL };
    for (platform::Label* label : lcd)
        label->SetCaption("8888");
    rig.state.AwaitingAbsoluteReading = false;
    rig.state.PageFill = 17;
    rig.state.GraphStartSlot = 17;
    rig.knob.pointers["Pointer-1"] = 33;
    WriteBytes(rig.paths.SettingsFile(), { 3, 60, 2, 4, 3, 1, 0 });

    form.Form_Load();
    form.Form_Load();

    EXPECT_TRUE(rig.state.AwaitingAbsoluteReading);
    EXPECT_EQ(rig.state.PageFill, 1);
    EXPECT_EQ(rig.state.GraphStartSlot, 1);
    EXPECT_EQ(rig.state.SpecialWordTable[4], "OPEn");
    EXPECT_EQ(rig.knob.PointerValue("Pointer-1"), 0.0);
    EXPECT_TRUE(c.CMD_PLAY.Enabled() && c.MENU_START.Enabled());
    EXPECT_FALSE(
        c.CMD_STOP.Enabled() || c.MENU_STOP.Enabled() || c.CMD_PAGEUP.Enabled() || c.CMD_PAGEDOWN.Enabled());
    EXPECT_FALSE(c.NEG_LBL.Visible());
    for (platform::Label* label : lcd)
        EXPECT_EQ(label->Caption(), "") << label->Name();
    for (platform::Label* label : c.CursorLabels())
        EXPECT_FALSE(label->Enabled()) << label->Name();
    EXPECT_FALSE(c.picPRINT.Visible());

    EXPECT_EQ(rig.serial.Settings(), "4800,n,8,1");
    EXPECT_FALSE(rig.serial.IsOpen());
    EXPECT_EQ(rig.unlinkTimer.Interval(), 15000);
    EXPECT_EQ(rig.sampleTimer.Interval(), 1000);
    EXPECT_FALSE(rig.unlinkTimer.Enabled() || rig.analogTimer.Enabled() || rig.sampleTimer.Enabled());

    EXPECT_EQ(rig.graph.xAxis.caption, "Sample No.");
    EXPECT_EQ(rig.graph.yAxis.minimum, 0.0);
    EXPECT_EQ(rig.graph.yAxis.maximum, 40000000.0);

    EXPECT_EQ(c.GRAPH_MODE_COMBO.Items(), (std::vector<std::string> { "Zoom", "Pan", "Cursor" }));
    EXPECT_EQ(c.AMPLITUDE_COMBO.Items().size(), 18u);
    EXPECT_EQ(c.SAMPLE_COMBO.Items().size(), 8u);
    EXPECT_EQ(c.GRAPH_MODE_COMBO.ListIndex() + c.AMPLITUDE_COMBO.ListIndex() + c.SAMPLE_COMBO.ListIndex(), 0);
    EXPECT_EQ(rig.state.ComPortNumber, 3);
    EXPECT_EQ(c.MEMORY_BAR.Caption(), "300 Days 0 Hr 0 Min");
    EXPECT_EQ(c.MEMORY_BAR.Value(), 100.0);
}

TEST(MainFormQuitTest, EveryWayOutAsksTheSameQuestion)
{
    enum class Path { CloseWindow, ExitMenu, ExitButton };
    for (Path path : { Path::CloseWindow, Path::ExitMenu, Path::ExitButton }) {
        for (bool yes : { false, true }) {
            SCOPED_TRACE(std::to_string(static_cast<int>(path)) + (yes ? " Yes" : " No"));
            fakes::TestRig rig;
            MainForm form(rig.state, rig.controls, rig.services);
            form.Form_Load();
            // As if acquiring: the port open and every timer running.
            rig.serial.Open();
            rig.unlinkTimer.SetInterval(4000);
            for (fakes::ManualTimer* timer : { &rig.unlinkTimer, &rig.sampleTimer, &rig.analogTimer })
                timer->SetEnabled(true);
            const int restarts
                = rig.unlinkTimer.restarts + rig.sampleTimer.restarts + rig.analogTimer.restarts;

            rig.dialogs.answers.push_back(yes ? platform::MessageResult::Yes : platform::MessageResult::No);
            int cancel = 0;
            if (path == Path::CloseWindow)
                form.Form_Unload(cancel);
            else if (path == Path::ExitMenu)
                rig.controls.Exit.Click();
            else
                rig.controls.CMD_EXIT.Click();

            ASSERT_EQ(rig.dialogs.boxes.size(), 1u);
            const auto& box = rig.dialogs.boxes[0];
            EXPECT_EQ(std::tie(box.text, box.buttons, box.icon, box.title),
                std::make_tuple(std::string("Are you sure to quit?"), platform::MessageButtons::YesNo,
                    platform::MessageIcon::Question, std::string("Ventrix")));
            EXPECT_EQ(cancel, path == Path::CloseWindow && !yes ? 1 : 0);
            EXPECT_EQ(rig.serial.IsOpen(), !yes);
            EXPECT_EQ(rig.unlinkTimer.Interval(), yes ? 15000 : 4000);
            for (fakes::ManualTimer* timer : { &rig.unlinkTimer, &rig.sampleTimer, &rig.analogTimer })
                EXPECT_EQ(timer->Enabled(), !yes);
            EXPECT_EQ(rig.shell.endCount, yes ? 1 : 0);
            if (!yes) {
                EXPECT_EQ(
                    rig.unlinkTimer.restarts + rig.sampleTimer.restarts + rig.analogTimer.restarts, restarts);
                EXPECT_FALSE(std::filesystem::exists(rig.paths.SettingsFile()));
            } else {
                EXPECT_EQ(ReadBytes(rig.paths.SettingsFile()), (Bytes { 1, 1, 0, 0, 0, 0, 1 }));
            }
        }
    }
}

TEST_F(MainFormTest, MenusReachTheirHandlersAndTheChoicesOutliveTheRun)
{
    form.Form_Load();
    rig.controls.COM_ITEMS[3].Click();
    rig.controls.SEC_ITEMS[1].Click();
    EXPECT_EQ(rig.controls.MEMORY_BAR.Caption(), "10 Days 0 Hr 0 Min") << "a rate change redraws the gauge";
    rig.dialogs.answers.push_back(platform::MessageResult::Yes);
    rig.controls.CMD_EXIT.Click();
    EXPECT_EQ(ReadBytes(rig.paths.SettingsFile()), (Bytes { 4, 2, 0, 0, 0, 0, 1 }));

    // Once ended, the window's own close request asks nothing more.
    int cancel = 0;
    form.Form_Unload(cancel);
    EXPECT_EQ(cancel, 0);
    EXPECT_EQ(rig.dialogs.boxes.size(), 1u);
}

// The graph's lists and zoom-all reach their handlers; a chosen sample count sets up the time
// axis when acquisition starts.
TEST_F(MainFormTest, GraphControlsReachTheirHandlers)
{
    form.Form_Load();
    platform::MainControls& c = rig.controls;
    for (platform::Control* control : std::initializer_list<platform::Control*> {
             &c.GRAPH_MODE_COMBO, &c.AMPLITUDE_COMBO, &c.SAMPLE_COMBO, &c.AUTO_ZOOM, &c.CMD_ZOOM })
        EXPECT_TRUE(control->Enabled()) << control->Name();
    EXPECT_EQ(c.SAMPLE_COMBO.ToolTip(), "Time scale will automatically adjust to fit all samples");

    c.SAMPLE_COMBO.SetListIndex(2);
    EXPECT_EQ(rig.state.SampleScale, 20);
    rig.graph.SetAxisMaximum(platform::GraphAxis::XAxis, 400.0);
    c.CMD_PLAY.Click();
    EXPECT_EQ(rig.graph.xAxis.minimum, 0.0);
    EXPECT_EQ(rig.graph.xAxis.maximum, 20.0);

    c.AMPLITUDE_COMBO.SetListIndex(17);
    EXPECT_EQ(rig.graph.yAxis.maximum, 40000000.0);
    c.AUTO_ZOOM.Click();
    EXPECT_EQ(c.AMPLITUDE_COMBO.ListIndex() + c.SAMPLE_COMBO.ListIndex(), 0);
}

} // namespace
} // namespace ventrix::app
