#pragma once

#include "Backend/midi/MirelMidiMessage.h"
#include "Host/common/clock/ClockInput.h"
#include "Host/common/ports/MidiByteParser.h"
#include "Host/common/ports/PortRow.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>

namespace Host {

// Turns the bytes that come in from one port into events for the desk.
//
// An event enters with the default output and the default channel, or with its own channel if the input is set so. A
// note-on without velocity becomes a note-off. The end of a note enters in the same way as its beginning, even if
// settings changed in between. Sysex, active sensing and system reset do not enter; timing messages do, and also go to
// the clock.
class InputTranslator {
public:
    // Takes an event, on one of the system's threads. It may wait briefly if a queue is full.
    using Sink = std::function<void(const Backend::MidiEngine::MirelMidiMessage&)>;

    InputTranslator(char input, Sink sink, std::shared_ptr<ClockInput> clock);
    InputTranslator(const InputTranslator&) = delete;
    InputTranslator& operator=(const InputTranslator&) = delete;

    // [any] Applies to what comes from now on. Whether the port is enabled is handled elsewhere.
    void setSettings(const PortSettings& settings);

    // [one thread at a time] The next bytes and when they came.
    void receive(const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds);

    // [any] Ends the notes that came in and have not ended, for instance when the port is gone; forgets a half-read
    // message.
    void endHeldNotes();

    // [any] Nothing reaches the sink or the clock after this has returned.
    void close();

private:
    enum class Entry : std::uint8_t { NONE, DEFAULT_CHANNEL, OWN_CHANNEL };

    void handle(const MidiBytes& message, std::int64_t microseconds);
    void handleNote(const MidiBytes& message);
    void handleChannelEvent(const MidiBytes& message);
    void tellClock(std::uint8_t status, std::int64_t microseconds);
    void enter(std::uint8_t status, std::uint8_t d1, std::uint8_t d2, Entry entry);
    Entry entryOf(std::uint8_t channel) const;

    static constexpr std::size_t CHANNELS = 16;
    static constexpr std::size_t NOTES = 128;

    const char m_input;
    const std::shared_ptr<ClockInput> m_clock;
    std::atomic<bool> m_keepsChannels{false};
    std::atomic<std::uint16_t> m_channels{PortSettings::ALL_CHANNELS};

    std::mutex m_mutex;  // Guards everything below.
    Sink m_sink;         // Empty when closed.
    MidiByteParser m_parser;
    std::array<std::array<Entry, NOTES>, CHANNELS> m_held{};
};

}
