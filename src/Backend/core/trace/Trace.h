#pragma once

#include <atomic>
#include <string>

namespace Backend {

// The developers' trace: lines for the debugger about entered and left functions and about failed assertions. Silent
// unless enabled. Lines of several threads don't mix.
class Trace {
public:
    // [any] The one channel of the program.
    static Trace& channel();

    // [any] Nothing is written while this is false, as it is at first.
    void setEnabled(bool enabled) { m_enabled.store(enabled); }
    bool isEnabled() const { return m_enabled.load(); }

    // [any] Whether lines also go to the end of Platform::debugFilePath(). At first they don't.
    void setWriteToFile(bool writeToFile) { m_writeToFile.store(writeToFile); }
    bool writesToFile() const { return m_writeToFile.load(); }

    // [while no other thread traces] What stands in front of each line; empty for no prefix.
    void setName(const std::string& name) { m_name = name; }
    const std::string& getName() const { return m_name; }

    // [any] Writes one line. file is the source's path from the top without its extension ("src\Gui\MirelGui"),
    // function its qualified name, text "IN", "OUT" or anything else, also empty.
    void trace(const std::string& file, long line, const std::string& function, const std::string& text) const;

    // [any] Writes a line that names the expression if the condition is false. The program goes on in any case.
    void traceAssert(const std::string& file, long line, const std::string& function, const std::string& expression,
                     bool condition) const;

private:
    std::string m_name = "MIREL_TRACE";
    std::atomic<bool> m_writeToFile{false};
    std::atomic<bool> m_enabled{false};
};

}
