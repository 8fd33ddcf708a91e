#pragma once

#include <functional>
#include <string>

namespace Platform {

// [any] Passes text to the debug sink in one call. The default sink is the debugger (Windows) or standard error.
void writeDebugText(const std::string& text);

// [any] Replaces the sink, so that a test can see what was written; an empty function restores the system's. The sink
// is called on the writers' threads and must not write debug text itself.
void setDebugSink(std::function<void(const std::string&)> sink);

// [any] The system's own sink, whichever sink is set.
void writeSystemDebugText(const std::string& text);

// [any] The file that trace lines go to when they are also written to a file.
std::string debugFilePath();

}
