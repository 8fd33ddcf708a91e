#include "Backend/functions/values/SelectControlType.h"

#include <array>

namespace {

struct ModeName {
    SelectControlType::Mode mode;
    std::string_view name;
};

constexpr std::array<ModeName, 6> MODE_NAMES = {{
    {SelectControlType::UP, "up"},
    {SelectControlType::DOWN, "down"},
    {SelectControlType::LEFT, "left"},
    {SelectControlType::RIGHT, "right"},
    {SelectControlType::SELECTED, "selected"},
    {SelectControlType::ALL, "all"},
}};

}

SelectControlType::SelectControlType(std::string_view text) : m_cell(-1, -1) {
    for (const auto& row : MODE_NAMES) {
        if (text == row.name) {
            m_mode = row.mode;
            return;
        }
    }
    m_mode = SPECIFIC;
    m_cell = Cell(text);
}

std::string SelectControlType::toXmlString() const {
    for (const auto& row : MODE_NAMES)
        if (m_mode == row.mode)
            return std::string(row.name);
    return m_cell.toXmlString();
}
