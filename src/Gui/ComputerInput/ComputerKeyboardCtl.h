#pragma once

#include "Backend/input/Key.h"

#include <map>

namespace Gui::ComputerInput {

// A picture of the computer's keyboard that shows which keys are down. [gui]
class ComputerKeyboardCtl {
public:
    // Marks a key, with its modifiers, as down or up.
    void setPressed(const Key& key, bool pressed) { m_pressed[key] = pressed; }

    // Marks a key as up, whatever modifiers it went down with.
    void releaseAllOfCode(std::int32_t code) {
        for (auto& [key, pressed] : m_pressed)
            if (key.getCode() == code)
                pressed = false;
    }

    // Marks all keys as up.
    void clearHilight() {
        for (auto& entry : m_pressed)
            entry.second = false;
    }

    bool isPressed(const Key& key) const {
        const auto found = m_pressed.find(key);
        return found != m_pressed.end() && found->second;
    }

    // Shows what has changed.
    void redraw() {}

private:
    std::map<Key, bool> m_pressed;
};

}
