// The names and numbers by which the desk's windows and the host recognise each other.
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/UserMessages.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

struct Name {
    const char* constant;
    const char* name;
};

TEST(SkinPropertiesTest, HaveTheirNames) {
    using namespace SkinProperties;
    constexpr Name NAMES[] = {
        {SKINNER, "SkinnerPtr"},
        {WINDOW_PROCEDURE, "SkinnedWindowOrigProc"},
        {BUTTON_PROCEDURE, "SkinnedButtonOrigProc"},
        {CHECK_BOX_PROCEDURE, "SkinnedCheckBoxOrigProc"},
        {RADIO_BUTTON_PROCEDURE, "SkinnedRadioButtonOrigProc"},
        {EDIT_PROCEDURE, "SkinnedEditOrigProc"},
        {TRACKBAR_PROCEDURE, "SkinnedTrackbarOrigProc"},
        {MENU_PROCEDURE, "SkinnedMenuOrigProc"},
        {CHECKED, "CHECKED"},
        {SELECTED, "SELECTED"},
        {COLOUR, "COLOR"},
        {BACKGROUND_COLOUR, "BKCOLOR"},
        {GRAY_TEXT, "GRAYTEXT"},
        {DISABLED, "DISABLED"},
        {TEXT, "TEXT"},
        {TOGGLE, "TOGGLE"},
        {NO_WHEEL, "NOWHEEL"},
        {MIN, "MIN"},
        {MAX, "MAX"},
        {MIN_ZERO, "MINZERO"},
        {MAX_ZERO, "MAXZERO"},
        {SHOW_NOTE_STRING, "SHOW_NOTE_STRING"},
        {JUMP_BY_12, "JUMP_BY_12"},
        {SHOW_ZERO_AS_BLANK, "SHOW_ZERO_AS_BLANK"},
        {SET_BY_PROGRAM, "MYSET"},
        {COMBO_BOX, "ComboBox"},
        {HELP, "HELP"},
    };
    for (const Name& row : NAMES)
        EXPECT_STREQ(row.constant, row.name);
}

struct Number {
    UINT constant;
    UINT offset;
};

TEST(UserMessagesTest, HaveTheirNumbers) {
    constexpr Number NUMBERS[] = {
        {UM_RETURN_FOCUS, 101},        {UM_HOVER, 102},
        {UM_VERTICAL_TRACK, 103},      {UM_HORIZONTAL_TRACK, 104},
        {UM_CHILD_RESIZED, 105},       {UM_SIZE_CHANGED, 105},
        {UM_DOCK_CHANGED, 106},        {UM_ALWAYS_ON_TOP_CHANGED, 107},
        {UM_SKIN_BORDER_CHANGED, 108}, {UM_MOUSEWHEEL, 109},
        {UM_SYSTEM_PANEL_SHOWN, 110},  {UM_BANK_CHANGED, 111},
        {UM_MIDI_THRU_CHANGED, 117},   {UM_GLOBAL_KEYBOARD_CHANGED, 118},
        {UM_MOVE_WINDOW, 120},         {UM_DISPLAY_CREATED, 121},
        {UM_MODAL_WORK_DONE, 123},
    };
    for (const Number& row : NUMBERS)
        EXPECT_EQ(row.constant, UINT{WM_APP} + row.offset);
}

}
}
