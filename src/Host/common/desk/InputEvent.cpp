#include "Host/common/desk/InputEvent.h"

#include "Backend/core/MirelIF.h"
#include "Backend/core/MirelMessageManager.h"
#include "Backend/midi/engine/MidiEngineMessageManager.h"

namespace Host {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;

MirelMidiMessage makeInputEvent(MidiMessage::MessageType status, char d1, char d2, char channel, char input) {
    MirelMidiMessage event(status, d1, d2, {.channel = channel}, {.input = input});
    if (event.isNoteOn() && d2 == 0)
        event.setToNoteOff();
    return event;
}

void receiveInputEvent(Backend::MirelIF& mirel, const MirelMidiMessage& event) {
    mirel.getMidiEngineMessageManager().postPlayMidi(event);
    mirel.getMessageManager().postProcessMidiInputEvent(event);
}

}
