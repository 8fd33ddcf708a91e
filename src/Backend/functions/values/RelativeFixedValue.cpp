#include "Backend/functions/values/RelativeFixedValue.h"

#include "Backend/core/xml/Text.h"

using Backend::Text::readInteger;
using Backend::Text::trim;

RelativeFixedValue::RelativeFixedValue(std::string_view text) {
    text = trim(text);
    m_relative = text.empty() || text.front() == '+' || text.front() == '-';
    m_value = readInteger(text, 0);
}

std::int32_t RelativeFixedValue::applyTo(std::int32_t present) const {
    if (!m_relative)
        return m_value;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(present) + static_cast<std::uint32_t>(m_value));
}

std::string RelativeFixedValue::toXmlString() const {
    if (m_relative && m_value == 0)
        return {};
    const std::string sign = m_relative && m_value > 0 ? "+" : "";
    return sign + std::to_string(m_value);
}
