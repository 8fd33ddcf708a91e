#include "Backend/midi/Note.h"

#include "Backend/core/xml/Text.h"

#include <array>
#include <cctype>

namespace Backend {

namespace {

constexpr std::array<const char*, 12> PITCH_NAMES = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};

std::int32_t pitchOfLetter(char letter) {
    switch (std::toupper(static_cast<unsigned char>(letter))) {
        case 'A': return 9;
        case 'B': return 11;
        case 'D': return 2;
        case 'E': return 4;
        case 'F': return 5;
        case 'G': return 7;
        default: return 0;
    }
}

// Reduces a number of any size to the one byte in which a note stores it.
std::uint8_t noteByte(std::int64_t number) {
    return static_cast<std::uint8_t>(number & 0xff);
}

std::uint8_t numberFromText(std::string_view text) {
    if (text.empty())
        return Note::NONE;
    if (text.front() >= '0' && text.front() <= '9')
        return noteByte(Text::readInteger(text, 60));

    std::int32_t pitch = pitchOfLetter(text.front());
    text.remove_prefix(1);
    if (!text.empty() && (text.front() == '#' || text.front() == 'b')) {
        pitch += text.front() == '#' ? 1 : -1;
        text.remove_prefix(1);
    }
    const std::int64_t octave = Text::readInteger(text, 4);
    return noteByte(pitch + (octave + 1) * 12);
}

}

std::string getNoteName(char note, bool withOctave) {
    const int number = static_cast<unsigned char>(note);
    std::string name = PITCH_NAMES[static_cast<std::size_t>(number % 12)];
    if (withOctave)
        name += std::to_string(number / 12 - 1);
    return name;
}

Note::Note(std::string_view text) : m_number(numberFromText(text)) {}

std::string Note::toXmlString() const {
    return isNote() ? getName() : std::string();
}

}
