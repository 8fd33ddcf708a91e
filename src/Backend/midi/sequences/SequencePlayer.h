#pragma once

#include "Backend/midi/MirelMidiMessage.h"
#include "Backend/midi/sequences/SequenceSetting.h"

namespace Backend::MidiEngine {
class ArpeggioTarget;
}

namespace Backend::SequenceManagement {

// [player, rt] Sends a note once for each item of the sequence's current node, changed by the item's offsets. Sends
// nothing for rests, for events that are not notes, and for a position without a node.
void playThroughSequence(MidiEngine::ArpeggioTarget& engine, const MidiEngine::MirelMidiMessage& note,
                         const SequenceSetting& setting);

}
