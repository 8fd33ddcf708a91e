#pragma once

#include "Backend/core/xml/XmlItem.h"
#include "Backend/midi/Cell.h"

#include <cstdint>
#include <string_view>

// Which control of the grid.
class SelectControlType : public Backend::XmlItem {
public:
    enum Mode : std::int32_t {
        UP = 0,  // The next control above the selected one; likewise for the other three directions.
        DOWN = 1,
        LEFT = 2,
        RIGHT = 3,
        SELECTED = 4,
        SPECIFIC = 5,  // The control in the cell given by getCell.
        ALL = 6,
    };

    SelectControlType() = default;

    // cell counts for specific only.
    explicit SelectControlType(Mode mode, const Cell& cell = Cell(0, 0)) : m_mode(mode), m_cell(cell) {}

    // The exact name of a mode; anything else is a cell "row,col".
    explicit SelectControlType(std::string_view text);

    Mode getMode() const { return m_mode; }
    const Cell& getCell() const { return m_cell; }

    std::string toXmlString() const override;

    bool operator==(const SelectControlType& other) const { return m_mode == other.m_mode && m_cell == other.m_cell; }

private:
    Mode m_mode = UP;
    Cell m_cell = Cell(0, 0);
};
