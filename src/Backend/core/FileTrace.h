#pragma once

#include <source_location>
#include <string>

namespace Backend {

// [any] Says in the trace why a file was not used or not written, where the user is told nothing.
void traceFile(const std::string& path, const std::string& reason,
               const std::source_location& place = std::source_location::current());

}
