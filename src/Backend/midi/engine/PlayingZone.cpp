#include "Backend/midi/engine/PlayingZone.h"

#include "Backend/midi/NoteRange.h"

namespace Backend::MidiEngine {

char PlayingZone::mapNote(const MirelMidiMessage& message) {
    const char d1 = message.getD1();
    std::uint8_t& sent = m_sentNotes[static_cast<unsigned char>(d1)];
    if (message.isNoteOn()) {
        sent = static_cast<std::uint8_t>(foldIntoNoteRange(d1 + m_zone.transpose));
        return static_cast<char>(sent);
    }
    if (message.isNoteOff() && sent < 128)
        return static_cast<char>(sent);
    return d1;
}

}
