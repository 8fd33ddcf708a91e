#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>
#include <string_view>

// An amount: an offset to add to the current value, or a value to replace it.
class RelativeFixedValue : public Backend::XmlItem {
public:
    // Relative 0: no change.
    RelativeFixedValue() = default;
    RelativeFixedValue(bool relative, std::int32_t value) : m_relative(relative), m_value(value) {}

    // "+5" and "-5" are offsets, "5" a value, "" no change. An unreadable number is 0.
    explicit RelativeFixedValue(std::string_view text);

    bool isRelative() const { return m_relative; }
    void setRelative(bool relative) { m_relative = relative; }
    std::int32_t getValue() const { return m_value; }
    void setValue(std::int32_t value) { m_value = value; }

    // The result of applying this to a value; sums wrap at 32 bits.
    std::int32_t applyTo(std::int32_t present) const;

    std::string toXmlString() const override;

    bool operator==(const RelativeFixedValue& other) const {
        return m_relative == other.m_relative && m_value == other.m_value;
    }

private:
    bool m_relative = true;
    std::int32_t m_value = 0;
};
