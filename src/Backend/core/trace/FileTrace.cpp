#include "Backend/core/trace/FileTrace.h"

#include "Backend/core/trace/Trace.h"

#include <algorithm>

namespace Backend {

namespace {

// "src\Backend\core\Mirel" from the compiler's path of a source.
std::string traceName(std::string source) {
    const std::size_t top = source.rfind("src/");
    source.erase(0, top == std::string::npos ? 0 : top);
    source.erase(std::min(source.rfind('.'), source.size()));
    std::replace(source.begin(), source.end(), '/', '\\');
    return source;
}

}

void traceFile(const std::string& path, const std::string& reason, const char* source, int line, const char* function) {
    if (Trace::channel().isEnabled())
        Trace::channel().trace(traceName(source), line, function, path + ": " + reason);
}

}
