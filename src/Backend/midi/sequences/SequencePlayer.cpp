#include "Backend/midi/sequences/SequencePlayer.h"

#include "Backend/midi/ArpeggioTarget.h"
#include "Backend/midi/NoteRange.h"

#include <algorithm>

namespace Backend::SequenceManagement {

void playThroughSequence(MidiEngine::ArpeggioTarget& engine, const MidiEngine::MirelMidiMessage& note,
                         const SequenceSetting& setting) {
    const Sequence::Node* node = setting.getSequence().getCurrentNode();
    if (!node || !note.isNote())
        return;
    for (const SequenceItem& item : *node) {
        if (item.rest)
            continue;
        MidiEngine::MirelMidiMessage copy(note);
        if (setting.getUseNote())
            copy.setD1(static_cast<char>(foldIntoNoteRange(wrappingAdd(copy.getD1(), item.noteOffset))));
        if (setting.getUseVelocity())
            copy.setD2(static_cast<char>(std::clamp(wrappingAdd(copy.getD2(), item.velocityOffset), 0, 127)));
        engine.playMidiInternal(copy, false);
    }
}

}
