#include "Backend/core/trace/Trace.h"

#include "Platform/DebugSink.h"
#include "Platform/Files.h"

#include <sstream>

namespace Backend {

Trace& Trace::channel() {
    static Trace object;
    return object;
}

void Trace::trace(const std::string& file, long line, const std::string& function, const std::string& text) const {
    if (!m_enabled.load())
        return;
    std::ostringstream stream;
    if (!m_name.empty())
        stream << m_name << ": ";
    stream << file << ":" << line << " -- " << function;
    if (!text.empty())
        stream << " -- " << text;
    stream << '\n';
    const std::string whole = stream.str();
    Platform::writeDebugText(whole);
    if (m_writeToFile.load())
        Platform::Files::append(Platform::debugFilePath(), Platform::Files::withSystemLineEnds(whole));
}

void Trace::traceAssert(const std::string& file, long line, const std::string& function, const std::string& expression,
                        bool condition) const {
    if (!condition)
        trace(file, line, function, "TRACE ASSERT FAILED: " + expression);
}

}
