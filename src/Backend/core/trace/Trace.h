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

    // [any] Nothing is written while this is false, which is the default.
    void setEnabled(bool enabled) { m_enabled.store(enabled); }
    bool isEnabled() const { return m_enabled.load(); }

    // [any] Whether lines are also appended to Platform::debugFilePath(). Initially false.
    void setWriteToFile(bool writeToFile) { m_writeToFile.store(writeToFile); }
    bool writesToFile() const { return m_writeToFile.load(); }

    // [while no other thread traces] The prefix of each line; empty for none.
    void setName(const std::string& name) { m_name = name; }
    const std::string& getName() const { return m_name; }

    // [any] Writes one line. file is the source's path from the top without its extension ("src\Gui\MirelGui"),
    // function its qualified name, text "IN", "OUT" or anything else, possibly empty.
    void trace(const std::string& file, long line, const std::string& function, const std::string& text) const;

    // [any] If the condition is false, writes a line that names the expression. The program continues in any case.
    void traceAssert(const std::string& file, long line, const std::string& function, const std::string& expression,
                     bool condition) const;

private:
    std::string m_name = "MIREL_TRACE";
    std::atomic<bool> m_writeToFile{false};
    std::atomic<bool> m_enabled{false};
};

}
