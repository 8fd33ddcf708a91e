#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// A key of the computer keyboard together with the modifier keys being held. A small value. [any]
class Key : public Backend::XmlItem {
public:
    // Codes are the system's virtual-key codes, except for these keys, which the system doesn't distinguish by code.
    static constexpr std::int32_t NO_KEY = -1;
    static constexpr std::int32_t RIGHT_SHIFT = 1;
    static constexpr std::int32_t ALT_KEY = 2;
    static constexpr std::int32_t PRINT_SCREEN = 5;
    static constexpr std::int32_t RIGHT_CONTROL = 225;
    static constexpr std::int32_t NUMPAD_ENTER = 226;

    static constexpr int MODIFIER_STATES = 16;

    // No key and no modifiers.
    Key() = default;
    Key(std::int32_t code, bool shift, bool control, bool alt, bool win);

    // From the text form. An unknown name gives no key, with the modifiers that precede it.
    explicit Key(std::string_view id);

    std::int32_t getCode() const { return m_code; }
    bool isShift() const { return m_shift; }
    bool isControl() const { return m_control; }
    bool isAlt() const { return m_alt; }
    bool isWin() const { return m_win; }

    // The modifiers as a number from 0 to 15: shift 1, control 2, alt 4, win 8.
    int getModifierIndex() const;

    // The modifiers and the low byte of the code in one number, which decides equality, order and hash.
    std::int32_t getIdentity() const { return getModifierIndex() << 8 | (m_code & 0xff); }
    static Key fromIdentity(std::int32_t identity);

    // The modifiers and the name: "Shift Control Left". The left modifier keys and codes without a name don't read
    // back.
    std::string toXmlString() const override;

    // The name without modifiers; "Unknown" if the code has none.
    std::string getName() const;

    // The label of the key on the screen.
    std::string getLabel() const;

    // Whether the key reaches the desk in this modifier state: some combinations belong to the system, and some keys
    // are modifiers themselves.
    bool isAvailable() const;

    bool operator==(const Key& other) const { return getIdentity() == other.getIdentity(); }
    std::strong_ordering operator<=>(const Key& other) const { return getIdentity() <=> other.getIdentity(); }

private:
    std::int32_t m_code = NO_KEY;
    bool m_shift = false;
    bool m_control = false;
    bool m_alt = false;
    bool m_win = false;
};

template <>
struct std::hash<Key> {
    std::size_t operator()(const Key& key) const noexcept { return std::hash<std::int32_t>()(key.getIdentity()); }
};
