#include "Gui/Rules/texts/TextCut.h"

#include "Backend/core/xml/Text.h"

#include <algorithm>

namespace Gui {

using Backend::Text::isInsideCharacter;

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
