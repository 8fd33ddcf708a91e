#include "Backend/midi/arpeggios/ArpeggioFactory.h"

#include "Backend/midi/arpeggios/ChordArpeggio.h"
#include "Backend/midi/arpeggios/DownArpeggio.h"
#include "Backend/midi/arpeggios/UpArpeggio.h"
#include "Backend/midi/arpeggios/UpDownArpeggio.h"

#include <array>

namespace Backend::ArpeggioManagement {

namespace {

constexpr std::int32_t PPQ_PER_STEP = 20;

struct Kind {
    const char* typeName;
    std::unique_ptr<Arpeggio> (*create)();
};

template <typename T>
constexpr Kind kind() {
    return {T::TYPE_NAME, []() -> std::unique_ptr<Arpeggio> { return std::make_unique<T>(); }};
}

// In the order of the type numbers.
constexpr std::array<Kind, 4> KINDS = {
    kind<Arpeggios::ChordArpeggio>(),
    kind<Arpeggios::UpArpeggio>(),
    kind<Arpeggios::DownArpeggio>(),
    kind<Arpeggios::UpDownArpeggio>(),
};

}

std::unique_ptr<Arpeggio> createArpeggio(std::string_view typeName) {
    for (const Kind& candidate : KINDS)
        if (typeName == candidate.typeName)
            return candidate.create();
    return nullptr;
}

std::unique_ptr<Arpeggio> createArpeggio(int beatSteps, int lengthSteps, int type) {
    if (beatSteps <= 0 || type < 0 || type >= static_cast<int>(KINDS.size()))
        return nullptr;
    auto arpeggio = KINDS[static_cast<std::size_t>(type)].create();
    arpeggio->setBeat(static_cast<std::int32_t>(std::int64_t{beatSteps} * PPQ_PER_STEP));
    arpeggio->setLength(static_cast<std::int32_t>(std::int64_t{lengthSteps} * PPQ_PER_STEP));
    return arpeggio;
}

}
