#pragma once

#include <string>
#include <vector>

namespace Gui {

// [any] A program as lists show it: its place in the bank (from 0, shown from 1) and its name.
std::string describeProgram(int index, const std::string& name);

// [any] The programs of a bank. The current one appears under its present name, which may not be in the bank yet; an
// index without a program changes nothing.
std::vector<std::string> describePrograms(const std::vector<std::string>& names, int currentIndex,
                                          const std::string& currentName);

}
