// Messages of the controls. w and l are the two words; "heap" is a pointer to a copy that the receiver destroys. A cell
// in a word is its key: row in the high half, column in the low one.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::Controls {

// To the ControlMessageManager.
namespace Messages {

enum Number : UINT {
    UPDATE_CONTROLS =
        33969,            // w: heap vector of Control; l: low half whether to tell the window, high half a flag for it.
    LOAD_PRESET = 33970,  // l: heap string.
    RENAME_PRESET = 33971,    // w: heap string, the old name; l: heap string, the new one.
    DELETE_PRESET = 33972,    // l: heap string.
    SAVE_PRESET = 33973,      // w: heap string; l: heap vector of Cell, the selected ones.
    CHANGE_CONTROL = 33974,   // w: heap ControlChange.
    SEND_ALL = 33975,         // l: whether only those that send on their own.
    UPDATE_CONTROL = 33976,   // w: heap MirelMidiMessage.
    SELECT_CONTROLS = 33977,  // w: heap vector of Cell.
};

}

// To the window.
namespace WindowMessages {

enum Number : UINT {
    CONTROLS_CHANGED = 33969,      // w: the word of UPDATE_CONTROLS; l: heap vector of Control.
    ALL_CONTROLS_CHANGED = 33970,  // l: heap ControlMap.
    VALUE_CHANGED = 33971,         // w: cell; l: value.
    SELECTED_CHANGED = 33972,      // w: cell; l: 1 or 0.
    SET_FOCUS = 33973,             // w: mode of a SelectControlType; l: cell.
};

}

}
