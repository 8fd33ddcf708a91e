#include "Host/common/ports/InputTranslator.h"

#include <utility>

namespace Host {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;

namespace {

constexpr std::uint8_t NOTE_OFF = 0x80;
constexpr std::uint8_t NOTE_ON = 0x90;
constexpr std::uint8_t FIRST_SYSTEM = 0xf0;
constexpr std::uint8_t RELEASE_VELOCITY = 64;

}

InputTranslator::InputTranslator(char input, Sink sink, std::shared_ptr<ClockInput> clock)
    : m_input(input), m_clock(std::move(clock)), m_sink(std::move(sink)) {}

void InputTranslator::setSettings(const PortSettings& settings) {
    m_keepsChannels = settings.keepsChannels;
    m_channels = settings.channels;
}

void InputTranslator::receive(const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds) {
    const std::lock_guard lock(m_mutex);
    MidiBytes message;
    for (std::size_t i = 0; i < count; ++i)
        if (m_parser.feed(bytes[i], message))
            handle(message, microseconds);
}

void InputTranslator::endHeldNotes() {
    const std::lock_guard lock(m_mutex);
    m_parser = {};
    for (std::size_t channel = 0; channel < CHANNELS; ++channel)
        for (std::size_t note = 0; note < NOTES; ++note)
            if (const Entry entry = std::exchange(m_held[channel][note], Entry::NONE); entry != Entry::NONE)
                enter(static_cast<std::uint8_t>(NOTE_OFF | channel), static_cast<std::uint8_t>(note), RELEASE_VELOCITY,
                      entry);
}

void InputTranslator::close() {
    const std::lock_guard lock(m_mutex);
    m_sink = nullptr;
}

void InputTranslator::handle(const MidiBytes& message, std::int64_t microseconds) {
    if (message.status >= FIRST_SYSTEM) {
        tellClock(message.status, microseconds);
        const auto status = static_cast<MidiMessage::MessageType>(message.status);
        const bool enters =
            status != MidiMessage::ActiveSensing && status != MidiMessage::SystemReset && MidiMessage(status).isValid();
        if (enters)
            enter(message.status, message.d1, message.d2, Entry::DEFAULT_CHANNEL);
        return;
    }
    const std::uint8_t kind = message.status & 0xf0;
    if (kind == NOTE_ON || kind == NOTE_OFF)
        handleNote(message);
    else
        handleChannelEvent(message);
}

InputTranslator::Entry InputTranslator::entryOf(std::uint8_t channel) const {
    if ((m_channels.load() >> channel & 1) == 0)
        return Entry::NONE;
    return m_keepsChannels ? Entry::OWN_CHANNEL : Entry::DEFAULT_CHANNEL;
}

void InputTranslator::handleNote(const MidiBytes& message) {
    const std::uint8_t channel = message.status & 0x0f;
    const bool isOn = (message.status & 0xf0) == NOTE_ON && message.d2 > 0;
    Entry& held = m_held[channel][message.d1];
    const Entry now = entryOf(channel);
    if (isOn) {
        if (now == Entry::NONE)
            return;
        held = now;
        enter(message.status, message.d1, message.d2, now);
        return;
    }
    const Entry begun = std::exchange(held, Entry::NONE);
    const Entry entry = begun != Entry::NONE ? begun : now;
    if (entry != Entry::NONE)
        enter(static_cast<std::uint8_t>(NOTE_OFF | channel), message.d1, message.d2, entry);
}

void InputTranslator::handleChannelEvent(const MidiBytes& message) {
    const Entry entry = entryOf(message.status & 0x0f);
    if (entry != Entry::NONE)
        enter(message.status, message.d1, message.d2, entry);
}

void InputTranslator::tellClock(std::uint8_t status, std::int64_t microseconds) {
    if (!m_sink)
        return;
    switch (status) {
        case MidiMessage::TimingTick: m_clock->push(m_input, {ClockMessageKind::TICK, microseconds}); break;
        case MidiMessage::StartSong: m_clock->push(m_input, {ClockMessageKind::START, microseconds}); break;
        case MidiMessage::ContinueSong: m_clock->push(m_input, {ClockMessageKind::RESUME, microseconds}); break;
        case MidiMessage::StopSong: m_clock->push(m_input, {ClockMessageKind::STOP, microseconds}); break;
        default: break;
    }
}

void InputTranslator::enter(std::uint8_t status, std::uint8_t d1, std::uint8_t d2, Entry entry) {
    if (!m_sink)
        return;
    const auto channel = static_cast<char>(entry == Entry::OWN_CHANNEL ? static_cast<char>(status & 0x0f)
                                                                       : MirelMidiMessage::DEFAULT_CHANNEL);
    m_sink(MirelMidiMessage(MidiMessage::fixStatus(status), static_cast<char>(d1), static_cast<char>(d2),
                            {.channel = channel}, {.input = m_input}));
}

}
