// Requests to the engine's thread, as rows of what their first and second word carry.
#pragma once

#include "Backend/core/messages/MessageFamily.h"

#include <vector>

namespace Backend::Layers {
class LayerList;
}

namespace Backend::Zones {
struct Zone;
class ZoneMap;
}

namespace Backend::MidiEngine {

class MirelMidiMessage;
struct MidiInputPort;
struct MidiOutputPort;

namespace EngineMessages {

// clang-format off

inline constexpr Message<32870, BothWords<MirelMidiMessage>>       PLAY_MIDI_VIA_PARAM;
inline constexpr Message<32871, Heap<MirelMidiMessage>>            PLAY_MIDI_VIA_ALLOC;
inline constexpr Message<32872, Heap<std::vector<MidiInputPort>>>  SET_MIDI_INPUT_PORTS;
inline constexpr Message<32873, Heap<std::vector<MidiOutputPort>>> SET_MIDI_OUTPUT_PORTS;
inline constexpr Message<32874, int, bool>                         ENABLE_MIDI_INPUT;        // Port, on or off.
inline constexpr Message<32875, int, bool>                         ENABLE_MIDI_OUTPUT;       // Port, on or off.
inline constexpr Message<32876, int>                               SET_DEFAULT_MIDI_OUTPUT;  // Output, or -1.
inline constexpr Message<32877, Heap<Layers::LayerList>>           SET_LAYER_LIST;
inline constexpr Message<32878>                                    RESET_ONLY;               // Reserved: a reset alone.
inline constexpr Message<32879, Heap<Zones::ZoneMap>>              SET_ZONE_MAP;
inline constexpr Message<32880, Heap<Zones::Zone>>                 SET_ZONE;
inline constexpr Message<32881, int>                               SET_TEMPO;                // Beats per minute.
inline constexpr Message<32882, char>                              SET_TEMPO_SOURCE;         // Input, or -1.
inline constexpr Message<32883, bool>                              SET_MIDI_THRU;

inline constexpr auto FAMILY = familyOf<MIDI_ENGINE_RANGE>(
    Unused<>(),
    PLAY_MIDI_VIA_PARAM, PLAY_MIDI_VIA_ALLOC, SET_MIDI_INPUT_PORTS, SET_MIDI_OUTPUT_PORTS, ENABLE_MIDI_INPUT,
    ENABLE_MIDI_OUTPUT, SET_DEFAULT_MIDI_OUTPUT, SET_LAYER_LIST, RESET_ONLY, SET_ZONE_MAP, SET_ZONE, SET_TEMPO,
    SET_TEMPO_SOURCE, SET_MIDI_THRU);

// clang-format on

}

}
