// Messages of the layers. w and l are the two words; "heap" is a pointer to a copy that the receiver destroys.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::Layers {

// To the LayerMessageManager.
namespace Messages {

enum Number : UINT {
    UPDATE_LAYERS = 34719,   // w: heap vector of Layer; l: whether to tell the window.
    SET_LAYER_LIST = 34720,  // w: heap LayerList; l: whether to tell the window.
    LOAD_PRESET = 34721,     // l: heap string.
    RENAME_PRESET = 34722,   // w: heap string, the old name; l: heap string, the new one.
    DELETE_PRESET = 34723,   // l: heap string.
    SAVE_PRESET = 34724,     // w: heap string; l: heap vector of LayerId, the selected ones.
    SELECT_LAYERS = 34725,   // w: heap vector of LayerId.
};

}

// To the window.
namespace WindowMessages {

enum Number : UINT {
    LAYERS_CHANGED = 34719,      // l: heap vector of Layer.
    ALL_LAYERS_CHANGED = 34720,  // l: heap LayerList.
    SELECTED_CHANGED = 34721,    // w: layer; l: 1 or 0.
    EDIT_SELECT = 34722,         // l: heap SelectType.
    TRANSPOSE_CHANGED = 34723,   // w: layer; l: heap RelativeFixedValue.
    VELOCITY_CHANGED = 34724,    // w: layer; l: heap RelativeFixedValue.
    MUTE_CHANGED = 34725,        // w: layer; l: 1 or 0.
    MONO_CHANGED = 34726,        // w: layer; l: 1 or 0.
    SOLO_CHANGED = 34727,        // w: layer; l: 1 or 0.
    TOGGLE_CHANGED = 34728,      // w: layer; l: state of a NoteToggle.
};

}

}
