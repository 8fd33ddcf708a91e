#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>
#include <string_view>

namespace Backend {

// [any] The name of a note, given as an unsigned byte: "C#", or with octave "C#4". 60 is C4.
std::string getNoteName(char note, bool withOctave);

// A note number, 0 to 127. Anything above means no note; 255 is stored for that.
class Note : public XmlItem {
public:
    static constexpr std::uint8_t NONE = 255;

    Note() = default;
    explicit Note(std::uint8_t number) : m_number(number) {}

    // From a name such as "G#3" or a number such as "68". An empty text gives no note; nonsense still gives some note:
    // an unknown letter counts as C, a missing or unreadable octave as 4, an unreadable number as 60.
    explicit Note(std::string_view text);

    std::uint8_t getNumber() const { return m_number; }
    bool isNote() const { return m_number < 128; }

    // The name with octave.
    std::string getName() const { return getNoteName(static_cast<char>(m_number), true); }
    std::string getNameWithoutOctave() const { return getNoteName(static_cast<char>(m_number), false); }

    // The name with octave; empty for no note.
    std::string toXmlString() const override;

    bool operator==(const Note& other) const { return m_number == other.m_number; }

private:
    std::uint8_t m_number = NONE;
};

}
