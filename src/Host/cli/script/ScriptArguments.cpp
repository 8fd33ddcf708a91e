#include "Host/cli/script/ScriptArguments.h"

#include "Host/cli/script/ScriptError.h"

#include <charconv>

namespace Host::Cli {

std::optional<std::int32_t> parseNumber(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        base = 16;
        text.remove_prefix(2);
    }
    // A second sign is not a digit.
    if (text.empty() || text.front() == '-')
        return std::nullopt;
    std::int64_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size())
        return std::nullopt;
    if (isNegative)
        number = -number;
    if (number < INT32_MIN || number > INT32_MAX)
        return std::nullopt;
    return static_cast<std::int32_t>(number);
}

const std::string& ScriptArguments::takeWord(const char* what) {
    if (!hasMore())
        fail(m_line.words.front() + " lacks " + what);
    return m_line.words[m_next++];
}

std::int32_t ScriptArguments::takeNumber(const char* what, std::int32_t lowest, std::int32_t highest) {
    return toNumber(takeWord(what), what, lowest, highest);
}

std::int32_t ScriptArguments::toNumber(std::string_view text, const char* what, std::int32_t lowest,
                                       std::int32_t highest) const {
    const auto number = parseNumber(text);
    if (!number)
        fail(std::string(what) + " is not a number: \"" + std::string(text) + "\"");
    if (*number < lowest || *number > highest)
        fail(std::string(what) + " is not from " + std::to_string(lowest) + " to " + std::to_string(highest) + ": " +
             std::string(text));
    return *number;
}

void ScriptArguments::expectEnd() const {
    if (hasMore())
        fail("unexpected \"" + m_line.words[m_next] + "\" after " + m_line.words.front());
}

void ScriptArguments::fail(const std::string& text) const {
    throw ScriptError(m_line.number, text);
}

}
