#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

// A position in the grid of controls. Unset coordinates are -1.
class Cell : public Backend::XmlItem {
public:
    Cell() = default;
    Cell(std::int32_t row, std::int32_t column) : m_position{row, column} {}

    // From "row,col". An unreadable coordinate stays -1.
    explicit Cell(std::string_view text);

    std::int32_t getRow() const { return m_position.row; }
    std::int32_t getColumn() const { return m_position.column; }

    // Both coordinates in one number, which decides equality, order and hash.
    std::int32_t getKey() const {
        return static_cast<std::int32_t>((static_cast<std::uint32_t>(m_position.row) << 16) |
                                         static_cast<std::uint32_t>(m_position.column));
    }

    bool operator==(const Cell& other) const { return getKey() == other.getKey(); }
    std::strong_ordering operator<=>(const Cell& other) const { return getKey() <=> other.getKey(); }

    std::string toXmlString() const override;

private:
    struct Position {
        std::int32_t row = -1;
        std::int32_t column = -1;
    };

    Position m_position;  // In one piece, so that it is copied in one go.
};

template <>
struct std::hash<Cell> {
    std::size_t operator()(const Cell& cell) const noexcept { return std::hash<std::int32_t>()(cell.getKey()); }
};
