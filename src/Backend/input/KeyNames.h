// The names of keys. Two tables map names to codes and back; they are not quite inverse.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Backend::ComputerInput {

// [any] The code of a key by its name, case-sensitive; -1 if no key has this name.
std::int32_t keyCodeOfName(std::string_view name);

// [any] The name of a key by its code; "Unknown" if it has none.
std::string keyNameOfCode(std::int32_t code);

// [any] The label of a key on the screen: a short one, or otherwise its name.
std::string keyLabelOfCode(std::int32_t code);

}
