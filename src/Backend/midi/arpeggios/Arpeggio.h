#pragma once

#include "Backend/core/xml/Attribute.h"
#include "Backend/midi/TimeInterval.h"
#include "Backend/midi/arpeggios/ArpeggioNote.h"
#include "Backend/midi/sequences/SequenceSetting.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace Backend::MidiEngine {
class ArpeggioTarget;
}

namespace Backend::ArpeggioManagement {

// Holds the notes of a layer and plays them on its own schedule. The engine drives it one ppq at a time, under its
// lock; without an engine it plays and holds nothing.
class Arpeggio {
public:
    // The element of a layer that contains the arpeggio's own.
    static constexpr const char* TAG = "Arpeggio";

    static constexpr std::int32_t DEFAULT_PPQ = 480;

    // Notes beyond this many are not taken, so that keys that never go up can't exhaust the memory.
    static constexpr std::size_t MAX_NOTES = 1024;

    static auto attributes() {
        return std::tuple{
            Attribute{"beat", &Arpeggio::m_beat, DEFAULT_PPQ, {1, INT32_MAX}},
            Attribute{"length", &Arpeggio::m_length, DEFAULT_PPQ, {0, INT32_MAX}},
        };
    }

    virtual ~Arpeggio() = default;

    // A deep copy with the same settings and held notes.
    [[nodiscard]] virtual std::unique_ptr<Arpeggio> clone() const = 0;

    // The time between two steps. A beat of 0 or less never comes.
    TimeInterval getBeat() const { return TimeInterval(m_beat); }
    void setBeat(std::int32_t ppq) { m_beat = ppq; }

    // How long a note sounds, at most one beat.
    TimeInterval getLength() const { return TimeInterval(m_length); }
    void setLength(std::int32_t ppq) { m_length = ppq; }

    // The name of the element that stores it.
    virtual const char* getTypeName() const = 0;

    // "Up", for display.
    virtual const char* getDisplayName() const = 0;

    // Writes its element on one line, indented by this many tabs.
    void writeXml(std::ostream& stream, int indent) const;

    // [player, rt] A note of the layer.
    virtual void noteEvent(const MidiEngine::MirelMidiMessage& message,
                           SequenceManagement::SequenceSetting& sequence) = 0;

    // [player, rt] This ppq has come.
    virtual void timeEvent(std::int32_t ppq, SequenceManagement::SequenceSetting& sequence) = 0;

    // [player, rt] Ends sounding notes and forgets all notes.
    virtual void reset(SequenceManagement::SequenceSetting& sequence) = 0;

    // When it began to play; -1 if it isn't playing.
    std::int32_t getRunningSince() const { return m_runningSince; }

    // [engine] Also allocates room for as many notes as it may hold, so that taking them does not allocate.
    void setMidiEngine(MidiEngine::ArpeggioTarget* engine);

    // Whether it holds no notes, so that the passing of time has no effect.
    bool isIdle() const { return m_notes.empty(); }

    // "Up Arp 1/8 Len:1/16"
    std::string toString() const;

protected:
    Arpeggio() = default;
    Arpeggio(const Arpeggio&) = default;
    Arpeggio& operator=(const Arpeggio&) = default;

    // Where one ppq lies: on a step, on the end of the sounding note, or both.
    struct Clocks {
        bool noteEnd;
        bool onBeat;
    };

    Clocks readClocks(std::int32_t ppq) const;

    // Sends a note as it is or, if there is a sequence, through its current node.
    void sendNote(const ArpeggioNote& note, SequenceManagement::SequenceSetting& sequence);

    void sendNoteOn(ArpeggioNote& note, std::int32_t ppq, SequenceManagement::SequenceSetting& sequence);
    void sendNoteOff(ArpeggioNote& note, SequenceManagement::SequenceSetting& sequence);

    // Marks it as running since ppq, and sets the origin of the common grid if there is none.
    void startRunning(std::int32_t ppq);

    std::int32_t m_beat = DEFAULT_PPQ;
    std::int32_t m_length = DEFAULT_PPQ;
    std::int32_t m_runningSince = -1;
    std::int32_t m_lastNoteOn = -1;
    MidiEngine::ArpeggioTarget* m_midiEngine = nullptr;
    std::vector<ArpeggioNote> m_notes;

private:
    bool isOnBeat(std::int32_t ppq) const;
    bool isNoteEnd(std::int32_t ppq) const;
};

}
