#pragma once

#include <cstdint>

namespace Backend::MidiEngine {

// [any] Moves a note, 0 to 127, by steps of the major scale on key, a pitch class from 0 to 11. A note outside the
// scale moves like the degree below it. The result is not folded into the note range.
std::int32_t transposeDiatonic(std::int32_t note, std::int32_t key, signed char amount);

}
