#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>
#include <string_view>

// What happens to a flag.
class OnOffToggle : public Backend::XmlItem {
public:
    enum State : std::int32_t { on = 0, off = 1, toggle = 2 };

    OnOffToggle() = default;
    explicit OnOffToggle(State state) : m_state(state) {}

    // "on" and "off", exactly; anything else is toggle.
    explicit OnOffToggle(std::string_view text) : m_state(text == "on" ? on : text == "off" ? off : toggle) {}

    State getState() const { return m_state; }

    bool applyTo(bool present) const { return m_state == on || (m_state != off && !present); }

    std::string toXmlString() const override { return m_state == on ? "on" : m_state == off ? "off" : "toggle"; }

    bool operator==(const OnOffToggle& other) const { return m_state == other.m_state; }

private:
    State m_state = toggle;
};
