#include "Host/cli/render/RenderDesk.h"

#include <future>

namespace Host::Cli {

using namespace Backend;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;

namespace {

// The engine's times are kept far above 0.
constexpr std::int32_t ENGINE_ORIGIN = 50000000;

}

RenderDesk::RenderDesk(const Layers::LayerList& layers, const Zones::ZoneMap& zones)
    : m_mirel(std::make_unique<ObservedMirel>("", static_cast<MidiEngine::MidiPlayer&>(*this),
                                              [](const MirelMidiMessage&) { return false; })),
      m_engine(m_mirel->getMidiEngine()),
      m_threadId(Platform::currentThreadId()) {
    m_engine.initialize(0, false);
    auto& manager = m_engine.getMessageManager();
    manager.postSetMidiOutputPorts(std::vector<MidiOutputPort>(OUTPUTS));
    manager.postSetZoneMap(zones);
    manager.postSetLayerList(layers);
    manager.waitUntilIdle();
}

RenderDesk::~RenderDesk() {
    m_engine.end();
}

void RenderDesk::post(const MirelMidiMessage& event, std::int32_t ppq) {
    MirelMidiMessage timed(event);
    timed.setPpq(ENGINE_ORIGIN + ppq);
    m_engine.getMessageManager().postPlayMidi(timed);
}

void RenderDesk::playSlice(std::int32_t from, std::int32_t to) {
    m_engine.getMessageManager().waitUntilIdle();
    m_sliceFrom = from;
    m_engine.playTimeSlice(ENGINE_ORIGIN + from, ENGINE_ORIGIN + to);
}

bool RenderDesk::isArpeggioPlaying() {
    CriticalSectionLock lock(m_engine.getCriticalSection());
    return m_engine.getStartTime() >= 0;
}

void RenderDesk::endNotes(std::int32_t ppq) {
    // On another thread, because the slice that it waits for is played here.
    const auto done = std::async(std::launch::async, [this] { m_engine.getMessageManager().sendReset(); });
    while (done.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        playSlice(ppq, ppq);
}

void RenderDesk::playMidi(const MirelMidiMessage& message) {
    m_played.push_back({m_sliceFrom, message.getOutput(), message.getMidiMessage()});
}

}
