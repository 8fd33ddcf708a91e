// Messages of the controls, as rows of what their first and second word carry.
#pragma once

#include "Backend/core/messages/MessageFamily.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/midi/Cell.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace Backend::MidiEngine {
class MirelMidiMessage;
}

namespace Backend::Controls {

class Control;
struct ControlChange;
class ControlMap;

// Accompanies an update of controls: whether to notify the window, and a flag that is passed on to it.
struct UpdateFlags {
    bool notifyGui = false;
    bool guiFlag = false;
};

}

// Both flags in one word, each in one half.
template <>
struct Backend::Carried<Backend::Controls::UpdateFlags> : Carried<std::intptr_t> {
    using Value = Controls::UpdateFlags;

    template <class Word>
    static Word put(const Value& flags) {
        return static_cast<Word>((flags.notifyGui ? 1 : 0) | (flags.guiFlag ? 1 << 16 : 0));
    }

    template <class Word>
    static Value get(Word word) {
        return {(word & 0xffff) != 0, (word & 0xffff0000) != 0};
    }
};

// A cell is its key: row in the high half, column in the low one.
template <>
struct Backend::Carried<Cell> : Carried<std::intptr_t> {
    using Value = Cell;

    template <class Word>
    static Word put(const Cell& cell) {
        // A first word is never negative.
        using Number = std::conditional_t<std::is_signed_v<Word>, std::int32_t, std::uint32_t>;
        return static_cast<Word>(static_cast<Number>(cell.getKey()));
    }

    template <class Word>
    static Cell get(Word word) {
        return Cell(static_cast<std::int16_t>(word >> 16), static_cast<std::int16_t>(word));
    }
};

namespace Backend::Controls {

// clang-format off

// To the ControlMessageManager.
namespace Messages {

inline constexpr Message<33969, Heap<std::vector<Control>>, UpdateFlags>    UPDATE_CONTROLS;
inline constexpr Message<33970, Nothing, Heap<std::string>>                 LOAD_PRESET;
inline constexpr Message<33971, Heap<std::string>, Heap<std::string>>       RENAME_PRESET;  // Old name, new name.
inline constexpr Message<33972, Nothing, Heap<std::string>>                 DELETE_PRESET;
inline constexpr Message<33973, Heap<std::string>, Heap<std::vector<Cell>>> SAVE_PRESET;    // l: the selected.
inline constexpr Message<33974, Heap<ControlChange>>                        CHANGE_CONTROL;
inline constexpr Message<33975, Nothing, bool>                              SEND_ALL;       // l: autoSendOnly.
inline constexpr Message<33976, Heap<MidiEngine::MirelMidiMessage>>         UPDATE_CONTROL;
inline constexpr Message<33977, Heap<std::vector<Cell>>>                    SELECT_CONTROLS;

inline constexpr auto FAMILY = familyOf<CONTROL_RANGE>(
    Unused<33968, 33978>(),
    UPDATE_CONTROLS, LOAD_PRESET, RENAME_PRESET, DELETE_PRESET, SAVE_PRESET, CHANGE_CONTROL, SEND_ALL, UPDATE_CONTROL,
    SELECT_CONTROLS);

}

// To the window.
namespace WindowMessages {

inline constexpr Message<33969, UpdateFlags, Heap<std::vector<Control>>> CONTROLS_CHANGED;
inline constexpr Message<33970, Nothing, Heap<ControlMap>>               ALL_CONTROLS_CHANGED;
inline constexpr Message<33971, Cell, std::int32_t>                      VALUE_CHANGED;
inline constexpr Message<33972, Cell, bool>                              SELECTED_CHANGED;  // On or off.
inline constexpr Message<33973, SelectControlType::Mode, Cell>           SET_FOCUS;
inline constexpr Message<33974, Nothing, Heap<std::vector<std::string>>>  PRESET_NAMES_CHANGED;  // In order.

inline constexpr auto FAMILY = familyOf<CONTROL_GUI_RANGE>(
    Unused<33968>(),
    CONTROLS_CHANGED, ALL_CONTROLS_CHANGED, VALUE_CHANGED, SELECTED_CHANGED, SET_FOCUS, PRESET_NAMES_CHANGED);

}

// clang-format on

}
