// Where the names and settings of ports outlive the program: "Midi Inputs.txt" and "Midi Outputs.txt" in the data
// folder.
#pragma once

#include "Host/common/ports/PortList.h"

#include <string>

namespace Host {

inline constexpr const char* INPUTS_FILE = "Midi Inputs.txt";
inline constexpr const char* OUTPUTS_FILE = "Midi Outputs.txt";

// [any] The list of a file; without rows if the folder is empty text, or the file missing or nonsense.
PortList readPortFile(const std::string& dataFolder, const char* file);

// [any] Replaces the file in one step and makes its folder if need be. False if that failed; true for a folder that is
// empty text, where nothing is kept.
[[nodiscard]] bool writePortFile(const std::string& dataFolder, const char* file, const std::string& text);

}
