#include "Gui/Rules/values/SetupValues.h"

#include "Backend/core/xml/Text.h"

#include <algorithm>

namespace Gui {

std::int8_t readVelocity(const std::string& text) {
    return static_cast<std::int8_t>(Backend::Text::lowByte(Backend::Text::readInteger(text, 0)));
}

int readMouseSensitivity(const std::string& text) {
    return std::max(1, static_cast<int>(Backend::Text::readInteger(text, 1)));
}

}
