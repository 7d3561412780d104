#include "platform/MainControls.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace ventrix::platform {
namespace {

TEST(MainControlsTest, EveryControlHasAUniqueName)
{
    MainControls controls;
    std::set<std::string> names;
    int count = 0;
    controls.ForEach([&](Control& control) {
        names.insert(control.Name());
        ++count;
    });
    EXPECT_EQ(static_cast<int>(names.size()), count);
    EXPECT_TRUE(names.count("MENU_SAVE_GRAPG_AS"));
    EXPECT_TRUE(names.count("Y1_Y2_VAL_LBL"));
    EXPECT_TRUE(names.count("optionseparator4"));
}

TEST(MainControlsTest, SelectionHandlerRunsOnlyOnAChange)
{
    ComboBox list("LIST");
    list.AddItem("a");
    list.AddItem("b");
    int selections = 0;
    list.SetOnSelect([&] { ++selections; });
    list.SetListIndex(1);
    list.SetListIndex(1);
    list.SetListIndex(5);
    EXPECT_EQ(selections, 1);
    EXPECT_EQ(list.ListIndex(), 1);
}

} // namespace
} // namespace ventrix::platform
