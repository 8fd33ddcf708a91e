#pragma once

#include "Backend/midi/Cell.h"
#include "Backend/midi/MidiMessage.h"
#include "Backend/midi/Routing.h"

namespace Backend::MidiEngine {

enum class MidiEngineMessageType : std::uint32_t { EVENT = 0, RESET = 1, HARD_RESET = 2 };

// A MIDI event with its routing through the desk. A value, copied freely; everything except its texts is [rt].
class MirelMidiMessage {
public:
    static constexpr char DEFAULT_CHANNEL = -1;
    static constexpr char DEFAULT_INPUT = -1;
    static constexpr char DEFAULT_OUTPUT = -1;
    static constexpr char DEFAULT_ZONE = -1;

    MirelMidiMessage() = default;
    virtual ~MirelMidiMessage() = default;
    MirelMidiMessage(const MirelMidiMessage&) = default;
    MirelMidiMessage& operator=(const MirelMidiMessage&) = default;

    // A negative channel means the default channel, stored as 0; others are limited to 0 through 15. ppq below 0: at
    // once.
    MirelMidiMessage(MidiMessage::MessageType status, char d1, char d2, char channel, char output, char zone,
                     char input, std::int32_t ppq);

    // The same by names: MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {.output = 1, .zone = 2}, {.ppq = 960}).
    MirelMidiMessage(MidiMessage::MessageType status, char d1, char d2, const Routing& routing = {},
                     const Arrival& arrival = {});

    // From the two words of getWparam and getLparam.
    MirelMidiMessage(std::uint64_t wparam, std::int64_t lparam);

    // The default routing, with the event in this word.
    explicit MirelMidiMessage(std::uint64_t wparam) : m_midiMessage(wparam) {}

    // An event from a control or a key. A channel of 0 or more replaces the event's own, unchecked; a negative one
    // means the default channel.
    MirelMidiMessage(const MidiMessage& message, char output, char channel, char zone, const Cell& fromControl);
    MirelMidiMessage(const MidiMessage& message, const Routing& routing, const Cell& fromControl);

    static MirelMidiMessage createAllSoundOffCC(char output, char channel);
    static MirelMidiMessage createAllControllersOffCC(char output, char channel);
    static MirelMidiMessage createSystemReset(char output);

    // Requests that wait among the events in the engine's queue.
    static MirelMidiMessage createMirelReset();
    static MirelMidiMessage createMirelHardReset();

    const MidiMessage& getMidiMessage() const { return m_midiMessage; }
    void setMidiMessage(const MidiMessage& message) { m_midiMessage = message; }
    MidiMessage::MessageType getMessageType() const { return m_midiMessage.getStatus(); }
    MidiMessage::MessageType getStatus() const { return m_midiMessage.getStatus(); }
    void setStatus(MidiMessage::MessageType status) { m_midiMessage.setMessageType(status); }
    std::string getEventName() const { return m_midiMessage.getEventName(); }
    std::uint8_t getStatusWithChannel() const { return m_midiMessage.getStatusWithChannel(); }
    char getD1() const { return m_midiMessage.getD1(); }
    void setD1(char d1) { m_midiMessage.setD1(d1); }
    char getD2() const { return m_midiMessage.getD2(); }
    void setD2(char d2) { m_midiMessage.setD2(d2); }
    char getChannel() const { return m_midiMessage.getChannel(); }

    // 0 or more is stored unchecked, as the event's own channel; a negative one means the default channel.
    void setChannel(char channel) {
        m_way.defaultChannel = channel < 0;
        m_midiMessage.setChannel(m_way.defaultChannel ? 0 : channel);
    }

    char getOutput() const { return m_way.output; }
    void setOutput(char output) { m_way.output = output; }
    char getZone() const { return m_way.zone; }
    void setZone(char zone) { m_way.zone = zone; }
    char getInput() const { return m_way.input; }
    const Cell& getFromControl() const { return m_fromControl; }
    void setFromControl(const Cell& cell) { m_fromControl = cell; }
    std::int32_t getPpq() const { return m_timing.ppq; }
    void setPpq(std::int32_t ppq) { m_timing.ppq = ppq; }
    void setDefaultChannel(bool defaultChannel) { m_way.defaultChannel = defaultChannel; }
    bool isDefaultChannel() const { return m_way.defaultChannel; }
    bool hasParameters() const { return m_midiMessage.hasParameters(); }
    void setToNoteOff() { m_midiMessage.setToNoteOff(); }
    void setToNoteOn() { m_midiMessage.setToNoteOn(); }

    bool isNote() const { return m_midiMessage.isNote(); }
    bool isNoteOn() const { return m_midiMessage.isNoteOn(); }
    bool isNoteOff() const { return m_midiMessage.isNoteOff(); }
    bool isControllerChange() const { return m_midiMessage.isControllerChange(); }
    bool isProgramChange() const { return m_midiMessage.isProgramChange(); }
    bool isChannelPressure() const { return m_midiMessage.isChannelPressure(); }
    bool isPitchBend() const { return m_midiMessage.isPitchBend(); }
    bool isSongSelect() const { return m_midiMessage.isSongSelect(); }
    bool isUnofficialBusSelect() const { return m_midiMessage.isUnofficialBusSelect(); }
    bool isTimingTick() const { return m_midiMessage.isTimingTick(); }
    bool isDefaultOutput() const { return m_way.output == DEFAULT_OUTPUT; }
    bool isMirelReset() const { return m_timing.type == MidiEngineMessageType::RESET; }
    bool isMirelHardReset() const { return m_timing.type == MidiEngineMessageType::HARD_RESET; }
    bool isTimedEvent() const { return m_timing.ppq >= 0; }

    // The two words that carry a message, without its control, its time and a reset request.
    std::uint64_t getWparam() const { return m_midiMessage.getWparam(); }

    // zone, input, defaultChannel and output, from the high byte to the low one.
    std::int64_t getLparam() const;

    std::uint32_t getMidiOutShortMsg() const { return m_midiMessage.getMidiOutShortMsg(); }

private:
    explicit MirelMidiMessage(MidiEngineMessageType type) : m_timing{type, -1} {}

    // In pieces that are each copied in one go.
    struct Way {
        char zone = DEFAULT_ZONE;
        char output = DEFAULT_OUTPUT;
        char input = DEFAULT_INPUT;
        bool defaultChannel = true;
    };
    struct Timing {
        MidiEngineMessageType type = MidiEngineMessageType::EVENT;
        std::int32_t ppq = -1;
    };

    Way m_way;
    MidiMessage m_midiMessage;
    Cell m_fromControl;
    Timing m_timing;
};

}
