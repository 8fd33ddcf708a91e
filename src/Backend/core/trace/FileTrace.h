#pragma once

#include <string>

namespace Backend {

// [any] Says in the trace why a file was not used or not written, where the user is told nothing. The place is that of
// the call.
void traceFile(const std::string& path, const std::string& reason, const char* source = __builtin_FILE(),
               int line = __builtin_LINE(), const char* function = __builtin_FUNCTION());

}
