#pragma once

#include <cstddef>
#include <string>

namespace Gui {

// [any] The start of a UTF-8 text, at most this many bytes and without partial characters.
std::string cutText(const std::string& text, std::size_t maxBytes);

// [any] The first byte from this one on at which a character of a UTF-8 text begins; the text's length if there is
// none.
std::size_t nextCharacter(const std::string& text, std::size_t byte);

}
