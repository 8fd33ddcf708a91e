#pragma once

#include "Backend/midi/MirelMidiMessage.h"
#include "Backend/midi/sequences/SequenceSetting.h"

namespace Backend::MidiEngine {
class ArpeggioTarget;
}

namespace Backend::SequenceManagement {

// [player, rt] Sends a note once for each item of the sequence's present node, moved by the item's offsets. Rests,
// events that are no notes, and a position without a node send nothing.
void playThroughSequence(MidiEngine::ArpeggioTarget& engine, const MidiEngine::MirelMidiMessage& note,
                         const SequenceSetting& setting);

}
