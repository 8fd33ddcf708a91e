#pragma once

#include "Backend/midi/sequences/SequenceSetting.h"

namespace Backend::SequenceManagement {

// [backend] The sequence of an old preset by its number there; a number that had none gives no preset. Mode 1 lets only
// velocity offsets count, mode 2 both, any other only note offsets.
SequenceSetting importSequenceSetting(int number, int mode, const SequencePresetManager& presets);

}
