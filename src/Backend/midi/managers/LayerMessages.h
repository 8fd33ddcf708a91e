// Messages of the layers, as rows of what their first and second word carry.
#pragma once

#include "Backend/core/messages/MessageFamily.h"
#include "Backend/midi/LayerId.h"

#include <cstdint>
#include <string>
#include <vector>

class NoteToggle;
class RelativeFixedValue;
class SelectType;

namespace Backend::Layers {

struct Layer;
class LayerList;

// clang-format off

// To the LayerMessageManager.
namespace Messages {

inline constexpr Message<34719, Heap<std::vector<Layer>>, bool>                UPDATE_LAYERS;   // l: notifyGui.
inline constexpr Message<34720, Heap<LayerList>, bool>                         SET_LAYER_LIST;  // l: notifyGui.
inline constexpr Message<34721, Nothing, Heap<std::string>>                    LOAD_PRESET;
inline constexpr Message<34722, Heap<std::string>, Heap<std::string>>          RENAME_PRESET;   // Old name, new name.
inline constexpr Message<34723, Nothing, Heap<std::string>>                    DELETE_PRESET;
inline constexpr Message<34724, Heap<std::string>, Heap<std::vector<LayerId>>> SAVE_PRESET;     // l: the selected.
inline constexpr Message<34725, Heap<std::vector<LayerId>>>                    SELECT_LAYERS;

inline constexpr auto FAMILY = familyOf<LAYER_RANGE>(
    Unused<34718, 34726>(),
    UPDATE_LAYERS, SET_LAYER_LIST, LOAD_PRESET, RENAME_PRESET, DELETE_PRESET, SAVE_PRESET, SELECT_LAYERS);

}

// To the window. A layer is its id.
namespace WindowMessages {

inline constexpr Message<34719, Nothing, Heap<std::vector<Layer>>>      LAYERS_CHANGED;
inline constexpr Message<34720, Nothing, Heap<LayerList>>               ALL_LAYERS_CHANGED;
inline constexpr Message<34721, std::int32_t, bool>                     SELECTED_CHANGED;   // Layer, on or off.
inline constexpr Message<34722, Nothing, Heap<SelectType>>              EDIT_SELECT;
inline constexpr Message<34723, std::int32_t, Heap<RelativeFixedValue>> TRANSPOSE_CHANGED;  // Layer, its new value.
inline constexpr Message<34724, std::int32_t, Heap<RelativeFixedValue>> VELOCITY_CHANGED;
inline constexpr Message<34725, std::int32_t, bool>                     MUTE_CHANGED;
inline constexpr Message<34726, std::int32_t, bool>                     MONO_CHANGED;
inline constexpr Message<34727, std::int32_t, bool>                     SOLO_CHANGED;
inline constexpr Message<34728, std::int32_t, State<NoteToggle>>        TOGGLE_CHANGED;
inline constexpr Message<34729, Nothing, Heap<std::vector<std::string>>> PRESET_NAMES_CHANGED;  // In order.

inline constexpr auto FAMILY = familyOf<LAYER_GUI_RANGE>(
    Unused<34718>(),
    LAYERS_CHANGED, ALL_LAYERS_CHANGED, SELECTED_CHANGED, EDIT_SELECT, TRANSPOSE_CHANGED, VELOCITY_CHANGED,
    MUTE_CHANGED, MONO_CHANGED, SOLO_CHANGED, TOGGLE_CHANGED, PRESET_NAMES_CHANGED);

}

// clang-format on

}
