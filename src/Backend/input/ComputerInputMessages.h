// Messages of the computer input. w and l are the two words; "heap" is a pointer to a copy that the receiver destroys.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::ComputerInput {

// To the ComputerInputMessageManager.
namespace Messages {

enum Number : UINT {
    UPDATE_KEY_CONFIGURATIONS = 33469,  // w: whether to tell the window; l: heap vector of KeyConfiguration.
    SET_USE_KEY_UP_MOD = 33470,         // w: bool.
    LOAD_PRESET = 33471,                // l: heap string.
    RENAME_PRESET = 33472,              // w: heap string, the old name; l: heap string, the new one.
    DELETE_PRESET = 33473,              // l: heap string.
    SAVE_PRESET = 33474,                // w: heap string; l: heap vector of Key, the selected ones.
    KEY_DOWN = 33475,                   // w: a key's identity; l: 1 for a repeat.
    KEY_UP = 33476,                     // w: a key's identity.
};

}

// To the window.
namespace WindowMessages {

enum Number : UINT {
    KEYS_CHANGED = 33469,           // l: heap vector of KeyConfiguration.
    ALL_KEYS_CHANGED = 33470,       // w: useKeyUpMod; l: heap KeyConfigurationMap.
    CONTROL_KEYS_CHANGED = 33471,   //
    PRESET_FOLDER_CHANGED = 33472,  //
};

}

}
