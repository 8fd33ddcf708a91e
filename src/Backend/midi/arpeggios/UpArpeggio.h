#pragma once

#include "Backend/midi/arpeggios/SteppingArpeggio.h"

namespace Backend::ArpeggioManagement::Arpeggios {

// Plays the held notes from lowest to highest, one at a time.
class UpArpeggio : public SteppingArpeggio {
public:
    static constexpr const char* TYPE_NAME = "UpArpeggio";

    std::unique_ptr<Arpeggio> clone() const override { return std::make_unique<UpArpeggio>(*this); }
    const char* getTypeName() const override { return TYPE_NAME; }
    const char* getDisplayName() const override { return "Up"; }

protected:
    bool isBefore(char d1, char other) const override { return d1 < other; }
};

}
