#include "Backend/midi/engine/Transposition.h"

#include <array>

namespace Backend::MidiEngine {

namespace {

constexpr int DEGREES = 7;
constexpr int OCTAVE = 12;

// The degree of each semitone above the key.
constexpr std::array<int, OCTAVE> DEGREE_OF_SEMITONE = {0, 1, 1, 2, 2, 3, 4, 4, 5, 5, 6, 6};

// Semitones spanned by 1 to 7 scale steps (rows) up from each degree (columns).
constexpr std::array<std::array<int, DEGREES>, DEGREES> SEMITONES = {{
    {2, 2, 1, 2, 2, 2, 1},
    {4, 3, 3, 4, 4, 3, 3},
    {5, 5, 5, 6, 5, 5, 5},
    {7, 7, 7, 7, 7, 7, 6},
    {9, 9, 8, 9, 9, 8, 8},
    {11, 10, 10, 11, 10, 10, 10},
    {12, 12, 12, 12, 12, 12, 12},
}};

// steps is at least 1.
int semitones(int steps, int degree) {
    const int octaves = (steps - 1) / DEGREES;
    const int row = (steps - 1) % DEGREES;
    return SEMITONES[static_cast<std::size_t>(row)][static_cast<std::size_t>(degree)] + OCTAVE * octaves;
}

}

std::int32_t transposeDiatonic(std::int32_t note, std::int32_t key, signed char amount) {
    if (amount == 0)
        return note;
    const int degree = DEGREE_OF_SEMITONE[static_cast<std::size_t>((note - key + OCTAVE) % OCTAVE)];
    if (amount > 0)
        return note + semitones(amount, degree);
    // Going down from a degree spans as much as going up from its mirror image.
    const int mirrored = (9 - degree) % DEGREES;
    return note - semitones(-amount, mirrored);
}

}
