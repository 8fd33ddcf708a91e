#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>
#include <string_view>

// Which item of a list.
class SelectType : public Backend::XmlItem {
public:
    enum Mode : std::int32_t {
        UP = 0,        // The next item.
        DOWN = 1,      // The previous item.
        SELECTED = 2,  // The items selected on the screen.
        SPECIFIC = 3,  // The item with the index given by getValue.
        ALL = 4,
    };

    SelectType() = default;

    // value is the index from 0 and counts for specific only.
    explicit SelectType(Mode mode, std::int32_t value = 0) : m_mode(mode), m_value(value) {}

    // The exact name of a mode; anything else is an index, 0 if it contains no number.
    explicit SelectType(std::string_view text);

    Mode getMode() const { return m_mode; }
    std::int32_t getValue() const { return m_value; }

    std::string toXmlString() const override;

    bool operator==(const SelectType& other) const { return m_mode == other.m_mode && m_value == other.m_value; }

private:
    Mode m_mode = UP;
    std::int32_t m_value = 0;
};
