#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>
#include <string_view>

// What happens to a flag.
class OnOffToggle : public Backend::XmlItem {
public:
    enum State : std::int32_t { ON = 0, OFF = 1, TOGGLE = 2 };

    OnOffToggle() = default;
    explicit OnOffToggle(State state) : m_state(state) {}

    // Exactly "on" or "off"; anything else is toggle.
    explicit OnOffToggle(std::string_view text) : m_state(text == "on" ? ON : text == "off" ? OFF : TOGGLE) {}

    State getState() const { return m_state; }

    bool applyTo(bool present) const { return m_state == ON || (m_state != OFF && !present); }

    std::string toXmlString() const override { return m_state == ON ? "on" : m_state == OFF ? "off" : "toggle"; }

    bool operator==(const OnOffToggle& other) const { return m_state == other.m_state; }

private:
    State m_state = TOGGLE;
};
