#include "Gui/Rules/texts/DisplayText.h"

#include "Gui/Rules/texts/TextCut.h"

#include <algorithm>

namespace Gui::DisplayText {

std::string makeRoom(const std::string& shown, std::size_t added) {
    const std::size_t space = added < CAPACITY ? CAPACITY - 1 - added : 0;
    const std::size_t kept = std::min(shown.size() / 2, space);
    return shown.substr(nextCharacter(shown, shown.size() - kept));
}

}
