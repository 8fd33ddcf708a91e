#pragma once

#include <stdexcept>
#include <string>

namespace Host::Cli {

// A line of a script that makes no sense, and why.
class ScriptError : public std::runtime_error {
public:
    ScriptError(int line, const std::string& text) : std::runtime_error(text), m_line(line) {}

    int getLine() const { return m_line; }

private:
    int m_line;
};

}
