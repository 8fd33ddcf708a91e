#pragma once

#include "Backend/midi/Note.h"

#include <array>
#include <cstddef>

namespace Gui {

// A keyboard of all 128 notes that shows which of them sound. [gui]
class MusicKeyboardCtl {
public:
    static constexpr std::size_t KEYS = 128;

    // A note was started or ended once more. Numbers that are not notes are ignored.
    void noteOn(const Backend::Note& note) { change(note, 1); }
    void noteOff(const Backend::Note& note) { change(note, -1); }

    // Nothing sounds any more.
    void clearHilight() { m_counts = {}; }

    // How many times a note was started and not ended; 0 for anything that is not a note.
    int getCount(const Backend::Note& note) const { return note.isNote() ? m_counts[note.getNumber()] : 0; }

private:
    void change(const Backend::Note& note, int difference) {
        if (!note.isNote())
            return;
        int& count = m_counts[note.getNumber()];
        if (count + difference >= 0)
            count += difference;
    }

    std::array<int, KEYS> m_counts{};
};

}
