#pragma once

#include <string>

namespace Platform {

// [any] Passes text to the debugger (Windows) or to standard error, in one call.
void writeDebugText(const std::string& text);

// [any] Where trace lines go when they are also written to a file.
std::string debugFilePath();

}
