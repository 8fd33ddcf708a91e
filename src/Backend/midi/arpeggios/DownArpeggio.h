#pragma once

#include "Backend/midi/arpeggios/SteppingArpeggio.h"

namespace Backend::ArpeggioManagement::Arpeggios {

// Plays the held notes from highest to lowest, one at a time.
class DownArpeggio : public SteppingArpeggio {
public:
    static constexpr const char* TYPE_NAME = "DownArpeggio";

    std::unique_ptr<Arpeggio> clone() const override { return std::make_unique<DownArpeggio>(*this); }
    const char* getTypeName() const override { return TYPE_NAME; }
    const char* getDisplayName() const override { return "Down"; }

protected:
    bool isBefore(char d1, char other) const override { return d1 > other; }
};

}
