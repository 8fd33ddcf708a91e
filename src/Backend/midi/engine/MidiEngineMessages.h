// Requests to the engine's thread. w and l are the two words; "heap" is a pointer to an object that the handler
// destroys.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::MidiEngine::EngineMessages {

enum Number : UINT {
    STOP = 32869,
    PLAY_MIDI_VIA_PARAM = 32870,      // w, l: a MirelMidiMessage as getWparam and getLparam pack it.
    PLAY_MIDI_VIA_ALLOC = 32871,      // w: heap MirelMidiMessage.
    SET_MIDI_INPUT_PORTS = 32872,     // w: heap vector of MidiInputPort.
    SET_MIDI_OUTPUT_PORTS = 32873,    // w: heap vector of MidiOutputPort.
    ENABLE_MIDI_INPUT = 32874,        // w: port; l: bool.
    ENABLE_MIDI_OUTPUT = 32875,       // w: port; l: bool.
    SET_DEFAULT_MIDI_OUTPUT = 32876,  // w: output.
    SET_LAYER_LIST = 32877,           // w: heap LayerList.
    RESET_ONLY = 32878,               // Reserved: a reset and nothing else.
    SET_ZONE_MAP = 32879,             // w: heap ZoneMap.
    SET_ZONE = 32880,                 // w: heap Zone.
    SET_TEMPO = 32881,                // w: beats per minute.
    SET_TEMPO_SOURCE = 32882,         // w: input or -1.
    SET_MIDI_THRU = 32883,            // w: bool.
};

inline constexpr UINT FIRST_REQUEST = PLAY_MIDI_VIA_PARAM;
inline constexpr UINT LAST_REQUEST = SET_MIDI_THRU;

}
