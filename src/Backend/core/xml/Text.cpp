#include "Backend/core/xml/Text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace Backend::Text {

namespace {

constexpr std::string_view WHITE_SPACE = " \t\n\v\f\r";
constexpr std::array<std::string_view, 4> TRUE_TEXTS = {"true", "TRUE", "yes", "YES"};
constexpr std::array<std::string_view, 4> FALSE_TEXTS = {"false", "FALSE", "no", "NO"};

bool isOneOf(const std::array<std::string_view, 4>& texts, std::string_view text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

}

std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(WHITE_SPACE);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(WHITE_SPACE) - first + 1);
}

std::optional<std::int32_t> readInteger(std::string_view text) {
    const auto first = text.find_first_not_of(WHITE_SPACE);
    if (first == std::string_view::npos)
        return std::nullopt;
    text.remove_prefix(first);
    if (text.front() == '+') {
        text.remove_prefix(1);
        if (text.empty() || text.front() == '-')
            return std::nullopt;
    }
    std::int32_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc())
        return std::nullopt;
    return number;
}

std::int32_t readInteger(std::string_view text, std::int32_t defaultValue) {
    return readInteger(text).value_or(defaultValue);
}

std::optional<bool> readBool(std::string_view text) {
    if (isOneOf(TRUE_TEXTS, text))
        return true;
    if (isOneOf(FALSE_TEXTS, text))
        return false;
    return std::nullopt;
}

}
