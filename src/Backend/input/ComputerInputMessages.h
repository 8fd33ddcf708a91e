// Messages of the computer input, as rows of what their first and second word carry.
#pragma once

#include "Backend/core/messages/MessageFamily.h"
#include "Backend/input/Key.h"

#include <cstdint>
#include <string>
#include <vector>

// A key is its identity.
template <>
struct Backend::Carried<Key> : Carried<std::int32_t> {
    using Value = Key;

    template <class Word>
    static Word put(const Key& key) {
        return static_cast<Word>(key.getIdentity());
    }

    template <class Word>
    static Key get(Word word) {
        return Key::fromIdentity(static_cast<std::int32_t>(word));
    }
};

namespace Backend::ComputerInput {

class KeyConfiguration;
class KeyConfigurationMap;

// clang-format off

// To the ComputerInputMessageManager.
namespace Messages {

inline constexpr Message<33469, bool, Heap<std::vector<KeyConfiguration>>> UPDATE_KEY_CONFIGURATIONS;  // w: notifyGui.
inline constexpr Message<33470, bool>                                      SET_USE_KEY_UP_MOD;
inline constexpr Message<33471, Nothing, Heap<std::string>>                LOAD_PRESET;
inline constexpr Message<33472, Heap<std::string>, Heap<std::string>>      RENAME_PRESET;  // Old name, new name.
inline constexpr Message<33473, Nothing, Heap<std::string>>                DELETE_PRESET;
inline constexpr Message<33474, Heap<std::string>, Heap<std::vector<Key>>> SAVE_PRESET;  // l: the selected.
inline constexpr Message<33475, Key, bool>                                 KEY_DOWN;  // l: isRepeat.
inline constexpr Message<33476, Key>                                       KEY_UP;

inline constexpr auto FAMILY = familyOf<COMPUTER_INPUT_RANGE>(
    Unused<33468, 33477>(),
    UPDATE_KEY_CONFIGURATIONS, SET_USE_KEY_UP_MOD, LOAD_PRESET, RENAME_PRESET, DELETE_PRESET, SAVE_PRESET, KEY_DOWN,
    KEY_UP);

}

// To the window.
namespace WindowMessages {

inline constexpr Message<33469, Nothing, Heap<std::vector<KeyConfiguration>>> KEYS_CHANGED;
inline constexpr Message<33470, bool, Heap<KeyConfigurationMap>>              ALL_KEYS_CHANGED;  // w: useKeyUpMod.
inline constexpr Message<33471>                                               CONTROL_KEYS_CHANGED;
inline constexpr Message<33472>                                               PRESET_FOLDER_CHANGED;
inline constexpr Message<33473, Nothing, Heap<std::vector<std::string>>>      PRESET_NAMES_CHANGED;  // In order.

inline constexpr auto FAMILY = familyOf<COMPUTER_INPUT_GUI_RANGE>(
    Unused<33468>(),
    KEYS_CHANGED, ALL_KEYS_CHANGED, CONTROL_KEYS_CHANGED, PRESET_FOLDER_CHANGED, PRESET_NAMES_CHANGED);

}

// clang-format on

}
