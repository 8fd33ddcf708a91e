#pragma once

#include <functional>
#include <string>

namespace Platform {

// [any] Passes text to the debug sink in one call. Unless another one was set, that is the debugger (Windows) or
// standard error.
void writeDebugText(const std::string& text);

// [any] Replaces the sink, so that a test can see what was written; an empty one brings the system's back. The sink is
// called on the writers' threads and must not write debug text itself.
void setDebugSink(std::function<void(const std::string&)> sink);

// [any] The system's own sink, whatever sink is set.
void writeSystemDebugText(const std::string& text);

// [any] Where trace lines go when they are also written to a file.
std::string debugFilePath();

}
