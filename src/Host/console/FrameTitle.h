#pragma once

#include <string>

namespace Host::Console {

// [any] The window's title: the program with its number from 1, the bank, and the product, leaving out what has no
// name. It also says when the desk takes all keys of the computer.
std::string makeFrameTitle(const std::string& bank, const std::string& program, int programIndex, bool globalKeyboard);

}
