// The files that keep the names and settings of ports: "Midi Inputs.txt" and "Midi Outputs.txt" in the data folder.
#pragma once

#include "Host/common/ports/PortList.h"

#include <string>

namespace Host {

inline constexpr const char* INPUTS_FILE = "Midi Inputs.txt";
inline constexpr const char* OUTPUTS_FILE = "Midi Outputs.txt";

// [any] The list in a file; empty if dataFolder is empty, or the file is missing or malformed.
PortList readPortFile(const std::string& dataFolder, const char* file);

// [any] Replaces the file in one step, creating its folder if necessary. False if that failed; true if dataFolder is
// empty, as nothing is kept then.
[[nodiscard]] bool writePortFile(const std::string& dataFolder, const char* file, const std::string& text);

}
