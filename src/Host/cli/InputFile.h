#pragma once

#include <string>

namespace Host::Cli {

// [any] Reads a file that the user named. False, with the reason in error, if it can't be read or is too large for the
// desk.
[[nodiscard]] bool readInputFile(const std::string& path, std::string& content, std::string& error);

}
