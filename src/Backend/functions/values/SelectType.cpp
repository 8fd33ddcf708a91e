#include "Backend/functions/values/SelectType.h"

#include "Backend/core/xml/Text.h"

SelectType::SelectType(std::string_view text) {
    if (text == "up") {
        m_mode = up;
    } else if (text == "down") {
        m_mode = down;
    } else if (text == "selected") {
        m_mode = selected;
    } else if (text == "all") {
        m_mode = all;
    } else {
        m_mode = specific;
        m_value = Backend::Text::readInteger(text, 0);
    }
}

std::string SelectType::toXmlString() const {
    switch (m_mode) {
        case up: return "up";
        case down: return "down";
        case selected: return "selected";
        case all: return "all";
        default: return std::to_string(m_value);
    }
}
