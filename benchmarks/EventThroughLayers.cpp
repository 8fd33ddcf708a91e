// What does an event cost from the queue through the layers to the host?
#include "benchmarks/BenchEngine.h"
#include "benchmarks/Cases.h"

namespace {

using namespace Benchmarks;

constexpr int EVENTS_A_SLICE = 100;

std::vector<Backend::MidiEngine::MirelMidiMessage> makeEvents() {
    std::vector<Backend::MidiEngine::MirelMidiMessage> events;
    for (int i = 0; i < EVENTS_A_SLICE; ++i)
        events.push_back(BenchEngine::makeNote(i % 2 == 0, 60 + i % 8 / 2, 100));
    return events;
}

// Notes on and off in turn, many in one slice, so that the slice itself counts little.
class EventThroughLayers : public Case {
public:
    EventThroughLayers(const char* layer, int count) : m_engine(repeatLayer(layer, count)) { run(2 * EVENTS_A_SLICE); }

    void run(std::int64_t operations) override {
        while (operations > 0) {
            for (const auto& event : m_events)
                m_engine.engine().postPlayMidi(event);
            m_engine.playSlice(1);
            operations -= EVENTS_A_SLICE;
        }
    }

private:
    BenchEngine m_engine;
    const std::vector<Backend::MidiEngine::MirelMidiMessage> m_events = makeEvents();
};

const bool added = [] {
    for (const int count : {1, 4, 16, 64}) {
        addCase("match_" + std::to_string(count) + "_layers",
                [count] { return std::make_unique<EventThroughLayers>("<Layer/>", count); });
        addCase("miss_" + std::to_string(count) + "_layers",
                [count] { return std::make_unique<EventThroughLayers>("<Layer minNote='C8'/>", count); });
    }
    return true;
}();

}
