#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>
#include <string_view>

namespace Backend {

// A ratio of two numbers from 1 to 99.
class Fraction : public XmlItem {
public:
    Fraction() = default;

    // Each number is clamped to 1 through 99.
    Fraction(std::int32_t numerator, std::int32_t denominator);

    // From "3/4", "3\4", "3_4" or "3". An unreadable number counts as 0 and so becomes 1.
    explicit Fraction(std::string_view text);

    std::int32_t getNumerator() const { return m_numerator; }
    std::int32_t getDenominator() const { return m_denominator; }

    // "3_4"
    std::string toXmlString() const override;

    // "3/4", for display.
    std::string toString() const;

    bool operator==(const Fraction& other) const {
        return m_numerator == other.m_numerator && m_denominator == other.m_denominator;
    }

private:
    std::int32_t m_numerator = 1;
    std::int32_t m_denominator = 1;
};

}
