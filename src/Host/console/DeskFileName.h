#pragma once

#include <string>

namespace Host::Console {

enum class DeskFileKind { NONE, BANK, PROGRAM };

// [any] What a file is by its extension, in which case doesn't count.
DeskFileKind kindOfDeskFile(const std::string& path);

// [any] The path with its extension in lower case, by which the desk itself knows a program.
std::string withLowerCaseExtension(const std::string& path);

}
