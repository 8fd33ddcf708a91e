// The names of keys. Names and codes map to each other by two tables that are not quite inverse.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Backend::ComputerInput {

// [any] The code of a key by its name, with case; -1 if no key has this name.
std::int32_t keyCodeOfName(std::string_view name);

// [any] The name of a key by its code; "Unknown" if it has none.
std::string keyNameOfCode(std::int32_t code);

// [any] What stands on a key on the screen: a short label, or else its name.
std::string keyLabelOfCode(std::int32_t code);

}
