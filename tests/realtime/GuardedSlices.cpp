// Every slice of the engine in this program is guarded: the linker has all calls of playTimeSlice come here first
// (--wrap), so that neither the engine nor its hosts know of it.
#include "Backend/midi/engine/MidiEngine.h"
#include "tests/realtime/SliceGuard.h"

extern "C" {

void __real__ZN7Backend10MidiEngine10MidiEngine13playTimeSliceEii(Backend::MidiEngine::MidiEngine* engine,
                                                                  std::int32_t from, std::int32_t to);

void __wrap__ZN7Backend10MidiEngine10MidiEngine13playTimeSliceEii(Backend::MidiEngine::MidiEngine* engine,
                                                                  std::int32_t from, std::int32_t to) {
    // The one lock that a slice waits for is taken before the guard begins; the engine enters it once more.
    const CriticalSectionLock lock(engine->getCriticalSection());
    const TestSupport::SliceGuard guard;
    __real__ZN7Backend10MidiEngine10MidiEngine13playTimeSliceEii(engine, from, to);
}
}
