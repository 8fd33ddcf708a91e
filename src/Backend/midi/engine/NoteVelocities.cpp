#include "Backend/midi/engine/NoteVelocities.h"

namespace Backend::MidiEngine {

void NoteVelocities::clear() {
    m_used = 0;
    if (++m_generation == 0) {
        m_entries.assign(m_entries.size(), Entry());
        m_generation = 1;
    }
}

void NoteVelocities::grow() {
    const std::vector<Entry> old = std::move(m_entries);
    m_entries.assign(old.size() * 2, Entry());
    m_mask = m_entries.size() - 1;
    for (const Entry& entry : old)
        if (entry.generation == m_generation)
            m_entries[placeOf(entry.key)] = entry;
}

}
