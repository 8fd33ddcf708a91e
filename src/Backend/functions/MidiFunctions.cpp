#include "Backend/functions/MidiFunctions.h"

#include "Backend/midi/engine/MidiEngineMessageManager.h"

namespace Backend::FunctionManagement::Functions {

Zones::Zone MidiNoteOn::getZoneRange() const {
    if (m_zone < 0)
        return Function::getZoneRange();
    Zones::Zone range;
    range.id = m_zone;
    range.lowNote = m_note;
    range.highNote = m_note;
    return range;
}

void postSystemEvent(MirelIF& mirel, MidiMessage::MessageType status, char d1, char output) {
    MidiEngine::MirelMidiMessage message;
    message.setMidiMessage(MidiMessage(status, d1));
    message.setOutput(output);
    mirel.getMidiEngineMessageManager().postPlayMidiViaParam(message);
}

}
