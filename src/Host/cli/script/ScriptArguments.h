#pragma once

#include "Host/cli/script/ScriptReader.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Host::Cli {

// [any] A 32-bit number as scripts and options write it: decimal or 0x hexadecimal, with an optional sign. Nothing for
// any other text.
[[nodiscard]] std::optional<std::int32_t> parseNumber(std::string_view text);

// The words after a command, taken one by one. Each operation throws ScriptError, with the line, for what it can't use.
class ScriptArguments {
public:
    explicit ScriptArguments(const ScriptLine& line) : m_line(line) {}

    bool hasMore() const { return m_next < m_line.words.size(); }

    // The next word; what names it in the message if it is missing.
    const std::string& takeWord(const char* what);

    // The next word as a number from lowest to highest.
    std::int32_t takeNumber(const char* what, std::int32_t lowest = INT32_MIN, std::int32_t highest = INT32_MAX);

    // Converts a text to a number from lowest to highest.
    std::int32_t toNumber(std::string_view text, const char* what, std::int32_t lowest = INT32_MIN,
                          std::int32_t highest = INT32_MAX) const;

    // Fails if there are more words.
    void expectEnd() const;

    [[noreturn]] void fail(const std::string& text) const;

private:
    const ScriptLine& m_line;
    std::size_t m_next = 1;
};

}
