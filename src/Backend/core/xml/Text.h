// Small rules for text. White space is that of the C locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Backend::Text {

// The text without white space at both ends.
std::string_view trim(std::string_view text);

// The decimal integer at the start of the text, after white space and with an optional sign; what follows is ignored.
// Nothing if there is no digit or the number doesn't fit 32 bits.
[[nodiscard]] std::optional<std::int32_t> readInteger(std::string_view text);

// The same, with a default for text without such a number.
std::int32_t readInteger(std::string_view text, std::int32_t defaultValue);

// The flag that a text stands for: exactly "true", "TRUE", "yes", "YES" or one of their opposites. Nothing for any
// other text.
[[nodiscard]] std::optional<bool> readBool(std::string_view text);

// The low byte of a number, for fields of one byte.
constexpr char lowByte(std::int32_t number) {
    return static_cast<char>(static_cast<unsigned char>(number & 0xff));
}

// Whether a byte of UTF-8 text is not the first one of its character.
constexpr bool isInsideCharacter(char byte) {
    constexpr unsigned CONTINUATION_MASK = 0xc0;
    constexpr unsigned CONTINUATION = 0x80;
    return (static_cast<unsigned char>(byte) & CONTINUATION_MASK) == CONTINUATION;
}

}
