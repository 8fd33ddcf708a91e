#pragma once

#include "Backend/midi/sequences/SequenceSetting.h"

namespace Backend::SequenceManagement {

// [backend] The sequence of an old preset by its number there; an unused number gives no preset. In mode 1 only
// velocity offsets count, in mode 2 both, otherwise only note offsets.
SequenceSetting importSequenceSetting(int number, int mode, const SequencePresetManager& presets);

}
