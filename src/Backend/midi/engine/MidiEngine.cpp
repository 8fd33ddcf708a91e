#include "Backend/midi/engine/MidiEngine.h"

#include "Backend/core/GuiPost.h"
#include "Backend/core/MirelIF.h"
#include "Backend/core/WindowMessages.h"
#include "Backend/core/xml/Text.h"
#include "Backend/midi/PassingEvents.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Backend::MidiEngine {

namespace {

constexpr double PPQ_PER_QUARTER = 480.0;
constexpr double MILLISECONDS_PER_MINUTE = 60000.0;
constexpr std::int32_t PPQ_OFFSET = 50000000;

}

MidiEngine::MidiEngine(MirelIF& mirel, MidiPlayer& midiPlayer)
    : m_mirel(mirel), m_midiPlayer(midiPlayer), m_messageManager(*this) {}

MidiEngine::~MidiEngine() = default;

void MidiEngine::initialize(int defaultOutput, bool midiThru) {
    setDefaultMidiOutput(defaultOutput);
    m_midiThru = midiThru;
    m_messageManager.start();
}

void MidiEngine::end() {
    m_messageManager.stop();
}

std::int32_t MidiEngine::milliseconds2Ppq(double milliseconds, int tempo) {
    constexpr double LATEST = std::numeric_limits<std::int32_t>::max();
    const double ppq = std::floor(tempo / MILLISECONDS_PER_MINUTE * milliseconds * PPQ_PER_QUARTER + 0.5) + PPQ_OFFSET;
    if (!(ppq > 0))  // Also true for NaN.
        return 0;
    return static_cast<std::int32_t>(std::min(ppq, LATEST));
}

void MidiEngine::setDefaultMidiOutput(int output) {
    m_defaultMidiOutput = Text::lowByte(output);
}

void MidiEngine::setMidiOutputPorts(std::vector<MidiOutputPort> ports) {
    m_midiOutputPorts = std::move(ports);
    m_enabledOutputs.fill(false);
    const std::size_t reachable = std::min<std::size_t>(m_midiOutputPorts.size(), NoteCounters::OUTPUTS);
    for (std::size_t i = 0; i < reachable; ++i)
        m_enabledOutputs[i] = m_midiOutputPorts[i].enabled;
}

void MidiEngine::setLayerList(const Layers::LayerList& layers) {
    m_audibleLayers.clear();
    m_arpeggioLayers.clear();
    m_layers.clear();
    m_layers.reserve(layers.size());
    for (const Layers::Layer& layer : layers)
        m_layers.emplace_back(layer, *this);
    const bool anySoloed =
        std::any_of(layers.begin(), layers.end(), [](const Layers::Layer& layer) { return layer.solo; });
    for (PlayingLayer& layer : m_layers) {
        if (anySoloed ? layer.getLayer().solo : !layer.getLayer().mute)
            m_audibleLayers.push_back(&layer);
        if (layer.getArpeggio())
            m_arpeggioLayers.push_back(&layer);
    }
    m_anyVelocityRange =
        std::any_of(layers.begin(), layers.end(), [](const Layers::Layer& layer) { return layer.hasVelocityRange(); });
}

void MidiEngine::setZoneMap(const Zones::ZoneMap& zones) {
    for (auto& zone : m_zones)
        zone.reset();
    for (const auto& [id, zone] : zones)
        if (id != MirelMidiMessage::DEFAULT_ZONE)  // Events without a zone are not transposed.
            m_zones[static_cast<unsigned char>(id)] = std::make_unique<PlayingZone>(zone);
}

void MidiEngine::setZone(const Zones::Zone& zone) {
    if (const auto& playing = m_zones[static_cast<unsigned char>(zone.id)])
        playing->setTranspose(zone.transpose);
}

bool MidiEngine::isMidiPlayerThread() const {
    return !m_midiPlayerRunning || Platform::currentThreadId() == m_midiPlayer.getThreadId();
}

void MidiEngine::postPlayMidi(const MirelMidiMessage& message) {
    const bool isFull = m_pendingMessages.size() >= MAX_PENDING_MESSAGES;
    if (isFull && !message.isMirelReset() && !message.isMirelHardReset())
        return;
    m_pendingMessages.add(message);
    // The next slice then allocates nothing, whether it plays all of these or none.
    const std::size_t waiting = m_timedMessages.size() + m_pendingMessages.size();
    m_timedMessages.makeRoomFor(waiting);
    m_noteVelocities.makeRoomForMore(waiting);
}

// The backend may be waiting for the engine right now, so nobody waits for the backend here.
void MidiEngine::postUpdateControl(const MirelMidiMessage& message) {
    if (!m_passingEvents)
        return;
    if (m_waitingUpdates.isEmpty() && m_passingEvents->postUpdateControl(message))
        return;
    m_waitingUpdates.pushBack(message);  // The latest events are what a control shows in the end.
}

void MidiEngine::postWaitingUpdates() {
    while (!m_waitingUpdates.isEmpty() && m_passingEvents->postUpdateControl(m_waitingUpdates.front()))
        m_waitingUpdates.popFront();
}

void MidiEngine::setStartTime(std::int32_t ppq) {
    if (m_startTime < 0)
        m_startTime = ppq;
}

void MidiEngine::updateStartTime() {
    const bool anyRunning =
        std::any_of(m_arpeggioLayers.begin(), m_arpeggioLayers.end(),
                    [](const PlayingLayer* layer) { return layer->getArpeggio()->getRunningSince() >= 0; });
    if (!anyRunning)
        m_startTime = -1;
}

HWND MidiEngine::getGuiWindowHandle() const {
    return m_mirel.getGuiWindowHandle();
}

// One of the two ends of playMidi, and the one that every key goes through.
[[gnu::always_inline]] inline void MidiEngine::playThroughLayers(const MirelMidiMessage& message) {
    if (message.isNoteOn()) {
        for (PlayingLayer* layer : m_audibleLayers)
            layer->noteOn(message);
    } else if (message.isNoteOff()) {
        for (PlayingLayer* layer : m_audibleLayers)
            layer->noteOff(message);
    } else {
        TargetSet targets;
        for (PlayingLayer* layer : m_audibleLayers)
            layer->otherEvent(message, targets);
    }
}

void MidiEngine::playMidi(MirelMidiMessage& message) {
    // Channels 0 to 15 and the byte 255, outputs from -1 up.
    if (static_cast<unsigned char>(message.getChannel() + 1) > 16 ||
        message.getOutput() < MirelMidiMessage::DEFAULT_OUTPUT)
        return;
    if (const auto& zone = m_zones[static_cast<unsigned char>(message.getZone())])
        message.setD1(zone->mapNote(message));

    if (message.isNoteOn())
        m_noteVelocities.store(message);
    else if (message.isNoteOff() && m_anyVelocityRange)
        message.setD2(m_noteVelocities.find(message));  // So that it reaches the layers that its Note On reached.

    if (message.isDefaultOutput() && message.isDefaultChannel())
        playThroughLayers(message);
    else
        playPastLayers(message);
}

void MidiEngine::playPastLayers(MirelMidiMessage& message) {
    const char originalOutput = message.getOutput();
    const char originalChannel = message.isDefaultChannel() ? MirelMidiMessage::DEFAULT_CHANNEL : message.getChannel();
    if (message.isDefaultOutput())
        message.setOutput(m_defaultMidiOutput);
    if (message.isDefaultChannel())
        message.setChannel(0);
    if (!isOutputEnabled(message.getOutput()))
        return;
    if (!message.isNote()) {
        MirelMidiMessage original(message);
        original.setOutput(originalOutput);
        original.setChannel(originalChannel);
        postUpdateControl(original);
    }
    playMidiInternal(message, false);
}

void MidiEngine::playMidiInternal(const MirelMidiMessage& message, bool stackNotes) {
    bool isHeldBack = false;
    if (message.isNote()) {
        if (std::int32_t* count = m_noteCounts.find(message)) {
            if (message.isNoteOn()) {
                ++*count;
            } else if (*count > 0) {
                --*count;
                isHeldBack = stackNotes && *count > 0;
            }
        }
    }
    const bool isFromInput = message.getInput() >= 0;
    if (!isHeldBack && (m_midiThru || !isFromInput))
        m_midiPlayer.playMidi(message);
    postToWindow(getGuiWindowHandle(), WindowMessages::DISPLAY_MIDI_OUTPUT_EVENT, message);
}

}
