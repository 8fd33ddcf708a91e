#include "Backend/functions/values/SelectType.h"

#include "Backend/core/xml/Text.h"

SelectType::SelectType(std::string_view text) {
    if (text == "up") {
        m_mode = UP;
    } else if (text == "down") {
        m_mode = DOWN;
    } else if (text == "selected") {
        m_mode = SELECTED;
    } else if (text == "all") {
        m_mode = ALL;
    } else {
        m_mode = SPECIFIC;
        m_value = Backend::Text::readInteger(text, 0);
    }
}

std::string SelectType::toXmlString() const {
    switch (m_mode) {
        case UP: return "up";
        case DOWN: return "down";
        case SELECTED: return "selected";
        case ALL: return "all";
        default: return std::to_string(m_value);
    }
}
