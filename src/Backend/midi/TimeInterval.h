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

    // The length of a named note by index, 1 to 22. Any other index gives a quarter note.
    static TimeInterval fromIndex(int index);

    std::int32_t getPpq() const { return m_ppq; }

    // The name, such as "1/8 Dotted"; for a length without one the number of ppq.
    std::string toString() const;

    // The index of exactly this length; 0 if it has none.
    int getIndex() const;

    // The index of the shortest named length that is at least this long; 22 for anything longer.
    int getNearestIndex() const;

    bool operator==(const TimeInterval& other) const { return m_ppq == other.m_ppq; }

private:
    std::int32_t m_ppq;
};

}
