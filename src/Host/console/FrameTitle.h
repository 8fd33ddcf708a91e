#pragma once

#include <string>

namespace Host::Console {

// [any] The title of the window: the program with its number from 1, the bank, and the product. What has no name is
// left out. A desk that takes all keys of the computer says so.
std::string makeFrameTitle(const std::string& bank, const std::string& program, int programIndex, bool globalKeyboard);

}
