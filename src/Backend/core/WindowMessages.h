// Messages from the backend to the main window. w and l are the two words.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::WindowMessages {

enum Number : UINT {
    DISPLAY_MIDI_OUTPUT_EVENT = 33254,  // w, l: a MirelMidiMessage as getWparam and getLparam pack it.
};

}
