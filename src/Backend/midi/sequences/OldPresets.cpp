#include "Backend/midi/sequences/OldPresets.h"

#include "Backend/midi/sequences/SequencePresetNames.h"

#include <string>

namespace Backend::SequenceManagement {

namespace {

// A run of old numbers, and the place of its first one in the list of names.
struct Run {
    int first;
    int last;
    int place;
};

constexpr Run RUNS[] = {
    {0, 43, 0},
    {44, 44, 41},  // "042 - Drums 9" a second time.
    {49, 71, 44},
    {90, 111, 67},
};

std::string nameOf(int number) {
    for (const Run& run : RUNS)
        if (number >= run.first && number <= run.last)
            return SEQUENCE_PRESET_NAMES[static_cast<std::size_t>(run.place + number - run.first)];
    return {};
}

}

SequenceSetting importSequenceSetting(int number, int mode, const SequencePresetManager& presets) {
    SequenceSetting setting(nameOf(number), presets);
    setting.setUseNote(mode != 1);
    setting.setUseVelocity(mode == 1 || mode == 2);
    return setting;
}

}
