// How long does it take from a post on one thread until the engine has the event?
#include "benchmarks/BenchEngine.h"
#include "benchmarks/Cases.h"

namespace {

using namespace Benchmarks;
using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;

class PostToEngine : public Case {
public:
    // A timed event goes through the heap.
    explicit PostToEngine(std::int32_t ppq)
        : m_engine("<Layers/>"), m_event(MidiMessage::NoteOn, 60, 100, {}, {.ppq = ppq}) {}

    void run(std::int64_t operations) override {
        auto& manager = m_engine.engine().getMessageManager();
        for (; operations > 0; --operations) {
            manager.postPlayMidi(m_event);
            manager.waitUntilIdle();
            if (operations % EVENTS_A_SLICE == 0)
                m_engine.playSlice(1);
        }
    }

private:
    static constexpr int EVENTS_A_SLICE = 100;

    BenchEngine m_engine;
    MirelMidiMessage m_event;
};

const bool added = [] {
    addCase("post_until_the_engine_has_it", [] { return std::make_unique<PostToEngine>(-1); });
    addCase("post_timed_until_the_engine_has_it", [] { return std::make_unique<PostToEngine>(50000000); });
    return true;
}();

}
