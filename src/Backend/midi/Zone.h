#pragma once

#include "Backend/core/xml/Attribute.h"
#include "Backend/midi/Note.h"
#include "Backend/midi/ZoneId.h"

namespace Backend::Zones {

// A numbered group of events that can be transposed on its own.
struct Zone {
    static constexpr const char* TAG = "Zone";

    static auto attributes() {
        return std::tuple{
            Attribute{"id", &Zone::id, 0, {0, MAX_ZONE}},
            Attribute{"transpose", &Zone::transpose, 0, {-128, 127}},
        };
    }

    // Extends the range to include another one, whose notes must both be notes.
    void widen(const Zone& other) {
        if (!lowNote.isNote() || other.lowNote.getNumber() < lowNote.getNumber())
            lowNote = other.lowNote;
        if (!highNote.isNote() || other.highNote.getNumber() > highNote.getNumber())
            highNote = other.highNote;
    }

    ZoneId id = 0;
    char transpose = 0;  // Half-steps.
    Note lowNote;        // The range of the zone's keys, for display; no note if it has none.
    Note highNote;
    bool selected = false;  // On the screen.
};

}
