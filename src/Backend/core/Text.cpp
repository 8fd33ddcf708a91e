#include "Backend/core/Text.h"

#include <charconv>

namespace Backend::Text {

namespace {

constexpr std::string_view WHITE_SPACE = " \t\n\v\f\r";

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

}
