#include "platform/MainControls.h"

namespace ventrix::platform {

namespace {
template <std::size_t N>
void Caption(std::array<MenuItem, N>& items, const std::array<const char*, N>& captions)
{
    for (std::size_t i = 0; i < N; ++i)
        items[i].SetCaption(captions[i]);
}
} // namespace

MainControls::MainControls()
{
    MAIN_FRM.SetCaption("Ventrix 1.0");

    CMD_PLAY.SetCaption("Play");
    CMD_PLAY.SetToolTip("Start acquisition");
    CMD_STOP.SetCaption("Stop");
    CMD_STOP.SetToolTip("Stop acquisition");
    CMD_SAVE.SetCaption("Save");
    CMD_SAVE.SetToolTip("Save the data log as a text file");
    CMD_EXCEL.SetCaption("Export");
    CMD_EXCEL.SetToolTip("Export the data log to a spreadsheet");
    CMD_PRINT.SetCaption("Print");
    CMD_PRINT.SetToolTip("Print Graph");
    CMD_ZOOM.SetCaption("Zoom All");
    CMD_ZOOM.SetToolTip("Zoom all data");
    CMD_EXIT.SetCaption("Exit");
    CMD_EXIT.SetToolTip("Quit Ventrix");
    CMD_PAGEUP.SetCaption("Page Up");
    CMD_PAGEUP.SetToolTip("Show the previous page of the log");
    CMD_PAGEDOWN.SetCaption("Page Down");
    CMD_PAGEDOWN.SetToolTip("Show the next page of the log");
    CMD_RESET.SetCaption("Clear");
    CMD_RESET.SetToolTip("Clear all logged samples");

    FILE_MENU.SetCaption("&File");
    MENU_OPEN_GRAPH.SetCaption("&Open Graph...");
    MENU_SAVE_GRAPH.SetCaption("Save &Graph");
    MENU_SAVE_GRAPG_AS.SetCaption("Save Graph As...");
    Save.SetCaption("&Save");
    Save_As.SetCaption("Save &As...");
    Excel.SetCaption("Export to &Excel");
    MENU_PRINT_GRAPH.SetCaption("&Print Graph");
    Exit.SetCaption("E&xit");

    ACQUIRE_MENU.SetCaption("&Acquire");
    MENU_START.SetCaption("&Start");
    MENU_STOP.SetCaption("S&top");
    CLEAR_LOG.SetCaption("&Clear Log...");
    AUTO_ZOOM.SetCaption("&Auto Zoom All");

    option.SetCaption("&Option");
    COM.SetCaption("&COM Port");
    Caption(COM_ITEMS, { "COM 1", "COM 2", "COM 3", "COM 4" });
    RATE.SetCaption("&Sampling Rate");
    Caption(SEC_ITEMS, { "1s", "2s", "5s", "10s", "30s", "60s" });
    WIDTH.SetCaption("Line &Width");
    Caption(WIDTH_ITEMS, { "0", "1", "2", "3", "4", "5" });
    STYLE.SetCaption("Line &Style");
    Caption(STYLE_ITEMS, { "Solid", "Step", "Dash", "Dot", "Dash Dot" });
    POINT.SetCaption("&Point Style");
    Caption(POINT_ITEMS,
        { "NONE", "Empty Square", "Solid Square", "Empty Diamond", "Solid Diamond", "Asterisk", "Cross" });
    FILL.SetCaption("&Fill to Base");
    Grid.SetCaption("&Grid Line");
    for (auto& separator : OPTION_SEPARATORS)
        separator.SetCaption("-");

    // Check marks as the menu is designed, before the settings file is applied.
    COM_ITEMS[0].SetChecked(true);
    SEC_ITEMS[0].SetChecked(true);
    WIDTH_ITEMS[3].SetChecked(true);
    STYLE_ITEMS[0].SetChecked(true);
    POINT_ITEMS[0].SetChecked(true);
    Grid.SetChecked(true);

    HELP_MENU.SetCaption("&Help");
    HELP_CONTENT.SetCaption("&Content...");
    HELP_INDEX.SetCaption("&Index...");
    HELP_ABOUT.SetCaption("&About Ventrix...");

    X1_LBL.SetCaption("X1");
    Y1_LBL.SetCaption("Y1");
    X2_LBL.SetCaption("X2");
    Y2_LBL.SetCaption("Y2");
    X1_X2_LBL.SetCaption("X1-X2");
    Y1_Y2_LBL.SetCaption("Y1-Y2");
    X1_VAL_LBL.SetToolTip("Cursor 1 - Sample No.");
    Y1_VAL_LBL.SetToolTip("Cursor 1 - Amplitude");
    X2_VAL_LBL.SetToolTip("Cursor 2 - Sample No.");
    Y2_VAL_LBL.SetToolTip("Cursor 2 - Amplitude");
    X1_X2_VAL_LBL.SetToolTip("Time : Cursor 1 to Cursor 2");
    Y1_Y2_VAL_LBL.SetToolTip("Amplitude : Cursor 1 to Cursor 2");

    DEBUG_TEXT1.SetVisible(false);
}

std::array<Label*, 12> MainControls::CursorLabels()
{
    return { &X1_LBL, &X2_LBL, &Y1_LBL, &Y2_LBL, &X1_X2_LBL, &Y1_Y2_LBL, &X1_VAL_LBL, &X2_VAL_LBL,
        &Y1_VAL_LBL, &Y2_VAL_LBL, &X1_X2_VAL_LBL, &Y1_Y2_VAL_LBL };
}

void MainControls::ForEach(const std::function<void(Control&)>& visit)
{
    for (Control* control : std::initializer_list<Control*> { &MAIN_FRM, &CMD_PLAY, &CMD_STOP, &CMD_SAVE,
             &CMD_EXCEL, &CMD_PRINT, &CMD_ZOOM, &CMD_EXIT, &CMD_PAGEUP, &CMD_PAGEDOWN, &CMD_RESET, &FILE_MENU,
             &MENU_OPEN_GRAPH, &MENU_SAVE_GRAPH, &MENU_SAVE_GRAPG_AS, &Save, &Save_As, &Excel,
             &MENU_PRINT_GRAPH, &Exit, &ACQUIRE_MENU, &MENU_START, &MENU_STOP, &CLEAR_LOG, &AUTO_ZOOM,
             &option, &COM, &RATE, &WIDTH, &STYLE, &POINT, &FILL, &Grid, &HELP_MENU, &HELP_CONTENT,
             &HELP_INDEX, &HELP_ABOUT, &DIGIT_FRAME, &DIGIT_LBL, &NEG_LBL, &MODE_LBL, &HOLD_LBL, &AUTO_LBL,
             &BATTERY_LBL, &MIN_LBL, &FUNCTION_LBL, &GRAPH_MODE_COMBO, &AMPLITUDE_COMBO, &SAMPLE_COMBO,
             &DATA_LOG_TXT, &DEBUG_TEXT1, &MEMORY_BAR, &picPRINT })
        visit(*control);
    for (Label* label : CursorLabels())
        visit(*label);
    for (auto& item : COM_ITEMS)
        visit(item);
    for (auto& item : SEC_ITEMS)
        visit(item);
    for (auto& item : WIDTH_ITEMS)
        visit(item);
    for (auto& item : STYLE_ITEMS)
        visit(item);
    for (auto& item : POINT_ITEMS)
        visit(item);
    for (auto& item : OPTION_SEPARATORS)
        visit(item);
}

} // namespace ventrix::platform
