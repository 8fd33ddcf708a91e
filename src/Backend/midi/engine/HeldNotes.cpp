#include "Backend/midi/engine/HeldNotes.h"

#include <algorithm>

namespace Backend::MidiEngine {

void HeldNotes::add(char note, char velocity) {
    if (m_notes.size() >= MAX_NOTES) {
        --count(m_notes.front().note);
        m_notes.erase(m_notes.begin());
    }
    m_notes.push_back({note, velocity});
    ++count(note);
}

bool HeldNotes::remove(char note) {
    if (m_notes.empty())
        return true;
    if (count(note) == 0)
        return false;
    const auto entry =
        std::find_if(m_notes.rbegin(), m_notes.rend(), [note](const HeldNote& held) { return held.note == note; });
    const bool isNewest = entry == m_notes.rbegin();
    m_notes.erase(std::next(entry).base());
    --count(note);
    return isNewest;
}

void HeldNotes::clear() {
    m_notes.clear();
    m_counts.fill(0);
}

}
