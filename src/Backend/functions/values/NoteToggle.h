#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>
#include <string_view>

// How a layer turns key presses into long notes.
class NoteToggle : public Backend::XmlItem {
public:
    enum State : std::int32_t {
        OFF = 0,
        TYPE1 = 1,  // The second press of a key ends its note.
        TYPE2 = 2,  // The second press of a key ends its note and starts it again.
    };

    NoteToggle() = default;
    explicit NoteToggle(State state) : m_state(state) {}

    // Exactly "type1" or "type2"; anything else is off.
    explicit NoteToggle(std::string_view text) : m_state(text == "type1" ? TYPE1 : text == "type2" ? TYPE2 : OFF) {}

    State getState() const { return m_state; }

    std::string toXmlString() const override { return m_state == TYPE1 ? "type1" : m_state == TYPE2 ? "type2" : "off"; }

    bool operator==(const NoteToggle& other) const { return m_state == other.m_state; }

private:
    State m_state = OFF;
};
