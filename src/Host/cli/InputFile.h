#pragma once

#include <string>

namespace Host::Cli {

// [any] Reads a file that the user named. False, with why in error, if it can't be read or is larger than the desk
// reads.
[[nodiscard]] bool readInputFile(const std::string& path, std::string& content, std::string& error);

}
