#include "Gui/Rules/TextCut.h"

#include <algorithm>

namespace Gui {

namespace {

bool isInsideCharacter(char byte) {
    constexpr unsigned CONTINUATION_MASK = 0xc0;
    constexpr unsigned CONTINUATION = 0x80;
    return (static_cast<unsigned char>(byte) & CONTINUATION_MASK) == CONTINUATION;
}

}

std::string cutText(const std::string& text, std::size_t maxBytes) {
    std::size_t end = std::min(maxBytes, text.size());
    while (end > 0 && end < text.size() && isInsideCharacter(text[end]))
        --end;
    return text.substr(0, end);
}

std::size_t nextCharacter(const std::string& text, std::size_t byte) {
    while (byte < text.size() && isInsideCharacter(text[byte]))
        ++byte;
    return std::min(byte, text.size());
}

}
