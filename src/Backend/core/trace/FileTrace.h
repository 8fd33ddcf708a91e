#pragma once

#include <string>

namespace Backend {

// [any] Traces why a file was not used or not written, for cases that are not reported to the user. The trace names the
// caller's place.
void traceFile(const std::string& path, const std::string& reason, const char* source = __builtin_FILE(),
               int line = __builtin_LINE(), const char* function = __builtin_FUNCTION());

}
