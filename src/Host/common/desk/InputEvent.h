// Events that come in from a port.
#pragma once

#include "Backend/midi/MirelMidiMessage.h"

namespace Backend {
class MirelIF;
}

namespace Host {

// [any] An event as it enters the desk: on the default output, and on the default channel unless it keeps its own (0 to
// 15), in which case it bypasses the layers. A Note On of velocity 0 enters as a Note Off.
Backend::MidiEngine::MirelMidiMessage makeInputEvent(Backend::MidiEngine::MidiMessage::MessageType status, char d1,
                                                     char d2, char channel, char input);

// [any] Hands the event to the engine and to the log.
void receiveInputEvent(Backend::MirelIF& mirel, const Backend::MidiEngine::MirelMidiMessage& event);

}
