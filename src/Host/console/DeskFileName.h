#pragma once

#include <string>

namespace Host::Console {

enum class DeskFileKind { NONE, BANK, PROGRAM };

// [any] The kind of a file by its extension, ignoring case.
DeskFileKind kindOfDeskFile(const std::string& path);

// [any] The path with its extension in lower case, which is how the desk recognises a program.
std::string withLowerCaseExtension(const std::string& path);

}
