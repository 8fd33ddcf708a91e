#include "Backend/midi/Cell.h"

#include "Backend/core/xml/Text.h"

using Backend::Text::readInteger;
using Backend::Text::trim;

Cell::Cell(std::string_view text) {
    text = trim(text);
    const auto comma = text.find(',');
    m_position.row = readInteger(text.substr(0, comma), m_position.row);
    if (comma == std::string_view::npos)
        return;
    const auto rest = trim(text.substr(comma + 1));
    m_position.column = readInteger(rest.substr(0, rest.find(',')), m_position.column);
}

std::string Cell::toXmlString() const {
    return std::to_string(m_position.row) + "," + std::to_string(m_position.column);
}
