#pragma once

#include "platform/Button.h"
#include "platform/ComboBox.h"
#include "platform/Frame.h"
#include "platform/Label.h"
#include "platform/MenuItem.h"
#include "platform/SlideBar.h"
#include "platform/TextBox.h"

#include <array>
#include <functional>

namespace ventrix::platform {

// Every named control of the main window as a model, each member named as the window names the
// control. The constructor gives them the captions, tool tips and check marks of the window's
// design; start-up then puts them into their idle state. The window itself (MAIN_FRM) is a
// control too: its caption is the window title.
struct MainControls {
    MainControls();
    MainControls(const MainControls&) = delete;
    MainControls& operator=(const MainControls&) = delete;

    Control MAIN_FRM { "MAIN_FRM" };

    // Tool bar and panel buttons
    Button CMD_PLAY { "CMD_PLAY" };
    Button CMD_STOP { "CMD_STOP" };
    Button CMD_SAVE { "CMD_SAVE" };
    Button CMD_EXCEL { "CMD_EXCEL" };
    Button CMD_PRINT { "CMD_PRINT" };
    Button CMD_ZOOM { "CMD_ZOOM" };
    Button CMD_EXIT { "CMD_EXIT" };
    Button CMD_PAGEUP { "CMD_PAGEUP" };
    Button CMD_PAGEDOWN { "CMD_PAGEDOWN" };
    Button CMD_RESET { "CMD_RESET" };

    // File menu
    MenuItem FILE_MENU { "FILE_MENU" };
    MenuItem MENU_OPEN_GRAPH { "MENU_OPEN_GRAPH" };
    MenuItem MENU_SAVE_GRAPH { "MENU_SAVE_GRAPH" };
    MenuItem MENU_SAVE_GRAPG_AS { "MENU_SAVE_GRAPG_AS" };
    MenuItem Save { "Save" };
    MenuItem Save_As { "Save_As" };
    MenuItem Excel { "Excel" };
    MenuItem MENU_PRINT_GRAPH { "MENU_PRINT_GRAPH" };
    MenuItem Exit { "Exit" };

    // Acquisition menu
    MenuItem ACQUIRE_MENU { "ACQUIRE_MENU" };
    MenuItem MENU_START { "MENU_START" };
    MenuItem MENU_STOP { "MENU_STOP" };
    MenuItem CLEAR_LOG { "CLEAR_LOG" };
    MenuItem AUTO_ZOOM { "AUTO_ZOOM" };

    // Option menu
    MenuItem option { "option" };
    MenuItem COM { "COM" };
    std::array<MenuItem, 4> COM_ITEMS { MenuItem { "COM1" }, MenuItem { "COM2" }, MenuItem { "COM3" },
        MenuItem { "COM4" } };
    MenuItem RATE { "RATE" };
    std::array<MenuItem, 6> SEC_ITEMS { MenuItem { "SEC1" }, MenuItem { "SEC2" }, MenuItem { "SEC5" },
        MenuItem { "SEC10" }, MenuItem { "SEC30" }, MenuItem { "SEC60" } };
    MenuItem WIDTH { "WIDTH" };
    std::array<MenuItem, 6> WIDTH_ITEMS { MenuItem { "WIDTH0" }, MenuItem { "WIDTH1" }, MenuItem { "WIDTH2" },
        MenuItem { "WIDTH3" }, MenuItem { "WIDTH4" }, MenuItem { "WIDTH5" } };
    MenuItem STYLE { "STYLE" };
    std::array<MenuItem, 5> STYLE_ITEMS { MenuItem { "SOLID" }, MenuItem { "STEP" }, MenuItem { "DASH" },
        MenuItem { "DOT" }, MenuItem { "DASH_DOT" } };
    MenuItem POINT { "POINT" };
    std::array<MenuItem, 7> POINT_ITEMS { MenuItem { "NONE" }, MenuItem { "ESQUARE" }, MenuItem { "SSQUARE" },
        MenuItem { "EDIAMOND" }, MenuItem { "SDIAMOND" }, MenuItem { "ASTERISK" }, MenuItem { "CROSS" } };
    MenuItem FILL { "FILL" };
    MenuItem Grid { "Grid" };
    std::array<MenuItem, 4> OPTION_SEPARATORS { MenuItem { "optionseparator1" },
        MenuItem { "optionseparator2" }, MenuItem { "optionseparator3" }, MenuItem { "optionseparator4" } };

    // Help menu
    MenuItem HELP_MENU { "HELP_MENU" };
    MenuItem HELP_CONTENT { "HELP_CONTENT" };
    MenuItem HELP_INDEX { "HELP_INDEX" };
    MenuItem HELP_ABOUT { "HELP_ABOUT" };

    // Virtual LCD
    Frame DIGIT_FRAME { "DIGIT_FRAME" };
    Label DIGIT_LBL { "DIGIT_LBL" };
    Label NEG_LBL { "NEG_LBL" };
    Label MODE_LBL { "MODE_LBL" };
    Label HOLD_LBL { "HOLD_LBL" };
    Label AUTO_LBL { "AUTO_LBL" };
    Label BATTERY_LBL { "BATTERY_LBL" };
    Label MIN_LBL { "MIN_LBL" };
    Label FUNCTION_LBL { "FUNCTION_LBL" };

    // Graph panel: mode and scale lists, cursor readouts
    ComboBox GRAPH_MODE_COMBO { "GRAPH_MODE_COMBO" };
    ComboBox AMPLITUDE_COMBO { "AMPLITUDE_COMBO" };
    ComboBox SAMPLE_COMBO { "SAMPLE_COMBO" };
    Label X1_LBL { "X1_LBL" };
    Label X2_LBL { "X2_LBL" };
    Label Y1_LBL { "Y1_LBL" };
    Label Y2_LBL { "Y2_LBL" };
    Label X1_X2_LBL { "X1_X2_LBL" };
    Label Y1_Y2_LBL { "Y1_Y2_LBL" };
    Label X1_VAL_LBL { "X1_VAL_LBL" };
    Label X2_VAL_LBL { "X2_VAL_LBL" };
    Label Y1_VAL_LBL { "Y1_VAL_LBL" };
    Label Y2_VAL_LBL { "Y2_VAL_LBL" };
    Label X1_X2_VAL_LBL { "X1_X2_VAL_LBL" };
    Label Y1_Y2_VAL_LBL { "Y1_Y2_VAL_LBL" };

    // Data log and memory
    TextBox DATA_LOG_TXT { "DATA_LOG_TXT" };
    TextBox DEBUG_TEXT1 { "DEBUG_TEXT1" };
    SlideBar MEMORY_BAR { "MEMORY_BAR" };
    Frame picPRINT { "picPRINT" };

    // The twelve cursor labels, titles first then values, in the order the readouts name them.
    std::array<Label*, 12> CursorLabels();
    // Every control above, for bindings and checks that walk them all.
    void ForEach(const std::function<void(Control&)>& visit);
};

} // namespace ventrix::platform
