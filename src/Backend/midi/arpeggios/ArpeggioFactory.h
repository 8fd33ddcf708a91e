#pragma once

#include "Backend/midi/arpeggios/Arpeggio.h"

#include <memory>
#include <string_view>

namespace Backend::ArpeggioManagement {

// [any] The arpeggio whose element has this name, with default beat and length; null for an unknown name.
[[nodiscard]] std::unique_ptr<Arpeggio> createArpeggio(std::string_view typeName);

// [any] An arpeggio from an old preset. Beat and length are in steps of 20 ppq; type is 0 Chord, 1 Up, 2 Down, 3 Up +
// Down. Null if beatSteps is 0 or less or the type is none of these.
[[nodiscard]] std::unique_ptr<Arpeggio> createArpeggio(int beatSteps, int lengthSteps, int type);

}
