#include "Backend/midi/Fraction.h"

#include <algorithm>
#include <cstdlib>

namespace Backend {

namespace {

constexpr std::int32_t LOWEST = 1;
constexpr std::int32_t HIGHEST = 99;

std::int32_t numberFromText(std::string_view text) {
    const long number = std::strtol(std::string(text).c_str(), nullptr, 10);
    return static_cast<std::int32_t>(std::clamp<long>(number, LOWEST, HIGHEST));
}

}

Fraction::Fraction(std::int32_t numerator, std::int32_t denominator)
    : m_numerator(std::clamp(numerator, LOWEST, HIGHEST)), m_denominator(std::clamp(denominator, LOWEST, HIGHEST)) {}

Fraction::Fraction(std::string_view text) {
    // The kind of separator decides, not its position in the text.
    auto separator = std::string_view::npos;
    for (const char candidate : {'/', '\\', '_'}) {
        separator = text.find(candidate);
        if (separator != std::string_view::npos)
            break;
    }
    m_numerator = numberFromText(text.substr(0, separator));
    if (separator != std::string_view::npos)
        m_denominator = numberFromText(text.substr(separator + 1));
}

std::string Fraction::toXmlString() const {
    return std::to_string(m_numerator) + "_" + std::to_string(m_denominator);
}

std::string Fraction::toString() const {
    return std::to_string(m_numerator) + "/" + std::to_string(m_denominator);
}

}
