#pragma once

#include <string>

namespace Benchmarks {

// The text of a bank in which every program holds everything the built-in set-up does (75 keys, 13 and more controls)
// and 16 layers, each with an arpeggio and a sequence.
std::string makeFullBank(int programs);

}
