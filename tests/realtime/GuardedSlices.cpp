// Every slice of the engine in this program is guarded: the linker routes all calls of playTimeSlice through here
// (--wrap), without the engine or its hosts noticing.
#include "Backend/midi/engine/MidiEngine.h"
#include "tests/realtime/SliceGuard.h"

extern "C" {

void __real__ZN7Backend10MidiEngine10MidiEngine13playTimeSliceEii(Backend::MidiEngine::MidiEngine* engine,
                                                                  std::int32_t from, std::int32_t to);

void __wrap__ZN7Backend10MidiEngine10MidiEngine13playTimeSliceEii(Backend::MidiEngine::MidiEngine* engine,
                                                                  std::int32_t from, std::int32_t to) {
    // The one lock that a slice waits for is taken before the guard begins; the engine then enters it a second time.
    const CriticalSectionLock lock(engine->getCriticalSection());
    const TestSupport::SliceGuard guard;
    __real__ZN7Backend10MidiEngine10MidiEngine13playTimeSliceEii(engine, from, to);
}
}
