#pragma once

#include "Backend/core/xml/XmlItem.h"
#include "Backend/midi/Note.h"

#include <cstdint>
#include <fstream>
#include <string>

namespace Backend::MidiEngine {

// One bare MIDI event: a status without channel, two data bytes and a channel. A small value, copied freely.
class MidiMessage : public XmlItem {
public:
    // 0 is an empty message. It can also hold values without a name, which are not valid.
    enum MessageType : std::uint32_t {
        Empty = 0,
        NoteOff = 0x80,
        NoteOn = 0x90,
        KeyPressure = 0xA0,
        ControllerChange = 0xB0,
        ProgramChange = 0xC0,
        ChannelPressure = 0xD0,
        PitchBend = 0xE0,
        SystemExclusive = 0xF0,
        SongPosition = 0xF2,
        SongSelect = 0xF3,
        UnofficialBusSelect = 0xF5,
        TuneRequest = 0xF6,
        EndOfSysex = 0xF7,
        TimingTick = 0xF8,
        StartSong = 0xFA,
        ContinueSong = 0xFB,
        StopSong = 0xFC,
        ActiveSensing = 0xFE,
        SystemReset = 0xFF,
    };

    static constexpr char BANK_MSB = 0;
    static constexpr char BANK_LSB = 32;
    static constexpr char ALL_SOUND_OFF = 120;
    static constexpr char ALL_CONTROLLERS_OFF = 121;

    MidiMessage() = default;

    // The status loses its channel; the channel of the four-argument form is limited to 0 through 15.
    MidiMessage(MessageType status, char d1, char d2, char channel);
    MidiMessage(MessageType status, char d1) : m_bytes{fixStatus(status), d1, 0, 0} {}
    explicit MidiMessage(MessageType status) : m_bytes{fixStatus(status), 0, 0, 0} {}

    // From the word of getWparam. The channel is taken unchecked.
    explicit MidiMessage(std::uint64_t wparam)
        : m_bytes{fixStatus(static_cast<MessageType>(wparam & 0xff)), static_cast<char>(wparam >> 8 & 0xff),
                  static_cast<char>(wparam >> 16 & 0xff), static_cast<char>(wparam >> 24 & 0xff)} {}

    // From the text of toXmlString. An unknown name gives an empty message, an unreadable parameter 0.
    explicit MidiMessage(const std::string& text);

    // A Note On of velocity 0 on channel 0; empty if it is not a note.
    explicit MidiMessage(const Note& note);

    // A Note On of velocity 0 on the current channel, whatever the number.
    MidiMessage& operator=(const Note& note);

    // A status below 0xF0 without its low four bits; any other unchanged.
    static constexpr MessageType fixStatus(std::uint32_t status) {
        return static_cast<MessageType>(status < 0xF0 ? status & 0xF0 : status);
    }

    MessageType getStatus() const { return m_bytes.status; }
    MessageType getMessageType() const { return m_bytes.status; }
    void setMessageType(MessageType status) { m_bytes.status = status; }
    char getD1() const { return m_bytes.d1; }
    void setD1(char d1) { m_bytes.d1 = d1; }
    char getD2() const { return m_bytes.d2; }
    void setD2(char d2) { m_bytes.d2 = d2; }
    char getChannel() const { return m_bytes.channel; }
    void setChannel(char channel) { m_bytes.channel = channel; }

    // Status and channel merged into one byte.
    std::uint8_t getStatusWithChannel() const {
        return static_cast<std::uint8_t>(m_bytes.status | static_cast<unsigned char>(m_bytes.channel));
    }

    void setToNoteOff() { m_bytes.status = NoteOff; }
    void setToNoteOn() { m_bytes.status = NoteOn; }

    // Whether the status has a name.
    bool isValid() const;
    bool isNote() const { return m_bytes.status == NoteOff || m_bytes.status == NoteOn; }
    bool isNoteOn() const { return m_bytes.status == NoteOn; }
    bool isNoteOff() const { return m_bytes.status == NoteOff; }
    bool isControllerChange() const { return m_bytes.status == ControllerChange; }
    bool isProgramChange() const { return m_bytes.status == ProgramChange; }
    bool isChannelPressure() const { return m_bytes.status == ChannelPressure; }
    bool isPitchBend() const { return m_bytes.status == PitchBend; }
    bool isSongPosition() const { return m_bytes.status == SongPosition; }
    bool isSongSelect() const { return m_bytes.status == SongSelect; }
    bool isUnofficialBusSelect() const { return m_bytes.status == UnofficialBusSelect; }
    bool isTimingTick() const { return m_bytes.status == TimingTick; }
    bool isSystemReset() const { return m_bytes.status == SystemReset; }
    bool isBankMsb() const { return isControllerChange() && m_bytes.d1 == BANK_MSB; }
    bool isBankLsb() const { return isControllerChange() && m_bytes.d1 == BANK_LSB; }
    bool isAllSoundOff() const { return isControllerChange() && m_bytes.d1 == ALL_SOUND_OFF; }

    // Data bytes after the status: 0 to 2; 0 for an unknown status. System Exclusive counts its D1 and D2.
    int getMessageSize() const;
    bool hasParameters() const { return getMessageSize() > 0; }

    // channel, d2, d1 and status, from the high byte to the low one.
    std::uint64_t getWparam() const {
        return std::uint64_t{static_cast<unsigned char>(m_bytes.channel)} << 24 |
               std::uint64_t{static_cast<unsigned char>(m_bytes.d2)} << 16 |
               std::uint64_t{static_cast<unsigned char>(m_bytes.d1)} << 8 | (m_bytes.status & 0xff);
    }

    // d2, d1 and the status with its channel, as a MIDI output expects them. A channel above 15 is left out, and Song
    // Position has none.
    std::uint32_t getMidiOutShortMsg() const;

    // Writes the status with its channel and the data bytes. Returns the number of bytes: 1 to 3.
    int writeBytes(std::ofstream& stream) const;

    // "Note On", or "Unknown".
    std::string getEventName() const { return getEventNameStatic(m_bytes.status); }
    static std::string getEventNameStatic(MessageType status);

    // For display: "Note 60 (C4)", "Control Change 1: Modulation wheel", else the event name.
    std::string getEventNameWithCcAndNoteDetail() const;

    // The name of a controller, 0 to 127; "Undefined" for one without a name.
    static std::string getControllerName(char number);

    // "Note On,60" for notes and controllers; only the event name for all others, which lose their data here.
    std::string toXmlString() const override;

    bool operator==(const MidiMessage& other) const;
    bool operator!=(const MidiMessage& other) const { return !(*this == other); }

    // An order by status and d1 alone. <= and >= don't mirror each other: two messages that differ only in d2 or
    // channel are >= both ways and <= neither way.
    bool operator<(const MidiMessage& other) const;
    bool operator>=(const MidiMessage& other) const;
    bool operator<=(const MidiMessage& other) const;

private:
    // In one piece, so that it is copied in one go.
    struct Bytes {
        MessageType status = Empty;
        char d1 = 0;
        char d2 = 0;
        char channel = 0;
    };

    Bytes m_bytes;
};

}
