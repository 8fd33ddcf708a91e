// The names of the window properties that hold options for looks and behaviour. Flags are present or not; a limit of 0
// has a name of its own, because a number of 0 can't be told from a missing one.
#pragma once

namespace Gui::SkinProperties {

constexpr const char* SKINNER = "SkinnerPtr";  // The Skinner of a window.

// The window procedures that the skin's replaced.
constexpr const char* WINDOW_PROCEDURE = "SkinnedWindowOrigProc";
constexpr const char* BUTTON_PROCEDURE = "SkinnedButtonOrigProc";
constexpr const char* CHECK_BOX_PROCEDURE = "SkinnedCheckBoxOrigProc";
constexpr const char* RADIO_BUTTON_PROCEDURE = "SkinnedRadioButtonOrigProc";
constexpr const char* EDIT_PROCEDURE = "SkinnedEditOrigProc";
constexpr const char* TRACKBAR_PROCEDURE = "SkinnedTrackbarOrigProc";
constexpr const char* MENU_PROCEDURE = "SkinnedMenuOrigProc";

// Looks.
constexpr const char* CHECKED = "CHECKED";            // Check boxes and radio buttons: the flag that they stand for.
constexpr const char* SELECTED = "SELECTED";          // Buttons: the text in the colour of a pressed one.
constexpr const char* COLOUR = "COLOR";               // Buttons: a WindowsLib::Brush to fill with. Edits: of the text.
constexpr const char* BACKGROUND_COLOUR = "BKCOLOR";  // Edits with a colour: a WindowsLib::Brush behind the text.
constexpr const char* GRAY_TEXT = "GRAYTEXT";         // Any: invalid, or of several values.
constexpr const char* DISABLED = "DISABLED";          // Labels: of a disabled control.
constexpr const char* TEXT = "TEXT";                  // Labels and edits: a value rather than a name.
constexpr const char* TOGGLE = "TOGGLE";              // Track bars: one of two states.

// Values of edits.
constexpr const char* NO_WHEEL = "NOWHEEL";
constexpr const char* MIN = "MIN";
constexpr const char* MAX = "MAX";
constexpr const char* MIN_ZERO = "MINZERO";
constexpr const char* MAX_ZERO = "MAXZERO";
constexpr const char* SHOW_NOTE_STRING = "SHOW_NOTE_STRING";
constexpr const char* JUMP_BY_12 = "JUMP_BY_12";
constexpr const char* SHOW_ZERO_AS_BLANK = "SHOW_ZERO_AS_BLANK";

constexpr const char* SET_BY_PROGRAM = "MYSET";  // Edits: the program makes the next change.
constexpr const char* COMBO_BOX = "ComboBox";    // Edits: the ComboBox over it.
constexpr const char* HELP = "HELP";             // Any: the id of its help text.

}
