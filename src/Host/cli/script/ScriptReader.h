#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Host::Cli {

// One command of a script: its words, and its line.
struct ScriptLine {
    int number;
    std::vector<std::string> words;
};

// Parses the text of a script. Blanks separate the words of a line; double quotes make several into one.
class ScriptReader {
public:
    explicit ScriptReader(std::string_view text) : m_rest(text) {}

    // The next command, skipping comments and empty lines; nothing at the end. Throws ScriptError for an open quote.
    [[nodiscard]] std::optional<ScriptLine> nextCommand();

    // All lines up to one that holds a single ".", as one text. Throws ScriptError if there is none.
    std::string readBlock(const ScriptLine& command);

private:
    // Removes the next line from the text and returns it without its end.
    std::string_view takeLine();

    std::string_view m_rest;
    int m_lineNumber = 0;
};

}
