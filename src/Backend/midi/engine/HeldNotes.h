#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Backend::MidiEngine {

// The notes held in a layer, oldest first. The same note may be held more than once. [locked, rt] unless it says
// otherwise.
class HeldNotes {
public:
    struct HeldNote {
        char note;
        char velocity;
    };

    // When more are held, the oldest is forgotten, so that keys that never go up can't exhaust the memory.
    static constexpr std::size_t MAX_NOTES = 4096;

    // [engine] Allocates room for all of them, so that nothing else allocates.
    void makeRoom() { m_notes.reserve(MAX_NOTES); }

    bool isEmpty() const { return m_notes.empty(); }

    // The newest note. Call it only if there is one.
    HeldNote last() const { return m_notes.back(); }

    void add(char note, char velocity);

    // Removes the newest entry of this note. True if nothing was held or that entry was the newest of all; false if the
    // note was not held or newer ones are.
    bool remove(char note);

    void clear();

private:
    std::uint32_t& count(char note) { return m_counts[static_cast<unsigned char>(note)]; }

    std::vector<HeldNote> m_notes;
    std::array<std::uint32_t, 256> m_counts{};  // How often each note is held.
};

}
