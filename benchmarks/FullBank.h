#pragma once

#include <string>

namespace Benchmarks {

// The text of a bank in which every program holds all that the built-in set-up does (75 keys, 13 and more controls) and
// 16 layers with an arpeggio and a sequence each.
std::string makeFullBank(int programs);

}
