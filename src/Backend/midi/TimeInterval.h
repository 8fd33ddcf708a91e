#pragma once

#include <cstdint>
#include <string>

namespace Backend {

// A length in ppq, 480 to the quarter note; 22 lengths have names.
class TimeInterval {
public:
    static constexpr int FIRST_INDEX = 1;
    static constexpr int LAST_INDEX = 22;

    explicit TimeInterval(std::int32_t ppq) : m_ppq(ppq) {}

    // The length of a named note by its index, 1 to 22. Another index gives a quarter note.
    static TimeInterval fromIndex(int index);

    std::int32_t getPpq() const { return m_ppq; }

    // The name, such as "1/8 Dotted"; the decimal number of ppq for a length without one.
    std::string toString() const;

    // The index of exactly this length, else 0.
    int getIndex() const;

    // The index of the shortest named length that is not shorter than this one; 22 for anything longer.
    int getNearestIndex() const;

    bool operator==(const TimeInterval& other) const { return m_ppq == other.m_ppq; }

private:
    std::int32_t m_ppq;
};

}
