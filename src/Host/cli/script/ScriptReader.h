#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Host::Cli {

// One command of a script: its words, and where it stands.
struct ScriptLine {
    int number;
    std::vector<std::string> words;
};

// Takes the text of a script apart. A line divides into words at blanks; double quotes make one word of several.
class ScriptReader {
public:
    explicit ScriptReader(std::string_view text) : m_rest(text) {}

    // The next command, past comments and empty lines; nothing at the end. Throws ScriptError for an open quote.
    [[nodiscard]] std::optional<ScriptLine> nextCommand();

    // All lines up to one that holds a single ".", as one text. Throws ScriptError if there is none.
    std::string readBlock(const ScriptLine& command);

private:
    // Takes the next line off the text, without its end.
    std::string_view takeLine();

    std::string_view m_rest;
    int m_lineNumber = 0;
};

}
