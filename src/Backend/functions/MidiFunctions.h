// Functions that send one MIDI event.
#pragma once

#include "Backend/functions/ConcreteFunction.h"
#include "Backend/midi/MidiRanges.h"
#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::FunctionManagement::Functions {

using MidiEngine::MidiMessage;

// An event with a fixed status. -1 means the default zone, output or channel.
template <class Self, MidiMessage::MessageType STATUS>
class MidiFunction : public ConcreteFunction<Self, MidiSettingsType> {
public:
    using ConcreteFunction<Self, MidiSettingsType>::ConcreteFunction;

    static auto attributes() {
        return std::tuple{
            Attribute{"zone", &MidiFunction::m_zone, NOT_SET, MidiRanges::ZONE, Written::UNLESS_MISSING},
            Attribute{"output", &MidiFunction::m_output, NOT_SET, MidiRanges::OUTPUT, Written::UNLESS_MISSING},
        };
    }

    MidiMessage::MessageType getStatus() const override { return STATUS; }
    char getZone() const override { return m_zone; }
    void setZone(char zone) override { m_zone = zone; }
    char getOutput() const override { return m_output; }
    void setOutput(char output) override { m_output = output; }
    char getChannel() const override { return NOT_SET; }
    void setChannel(char) override {}
    short getD1() const override { return 0; }
    void setD1(short) override {}
    char getD2() const override { return 0; }
    void setD2(char) override {}

protected:
    static constexpr char NOT_SET = -1;

    // Sends an event to this function's zone and output.
    void play(MidiMessage::MessageType status, char d1, char d2, char channel) {
        this->mirel().playMidi({status, d1, d2, {.output = m_output, .channel = channel, .zone = m_zone}});
    }

    char m_zone = NOT_SET;
    char m_output = NOT_SET;
};

// A channel event.
template <class Self, MidiMessage::MessageType STATUS>
class ChannelFunction : public MidiFunction<Self, STATUS> {
public:
    using MidiFunction<Self, STATUS>::MidiFunction;

    static auto attributes() {
        return std::tuple_cat(
            MidiFunction<Self, STATUS>::attributes(),
            std::tuple(Attribute{"channel", &ChannelFunction::m_channel, MidiFunction<Self, STATUS>::NOT_SET,
                                 MidiRanges::CHANNEL, Written::UNLESS_MISSING}));
    }

    char getChannel() const override { return m_channel; }
    void setChannel(char channel) override { m_channel = channel; }

protected:
    char m_channel = MidiFunction<Self, STATUS>::NOT_SET;
};

template <class Self, MidiMessage::MessageType STATUS>
class NoteFunction : public ChannelFunction<Self, STATUS> {
public:
    using ChannelFunction<Self, STATUS>::ChannelFunction;

    static auto attributes() {
        return std::tuple_cat(
            ChannelFunction<Self, STATUS>::attributes(),
            std::tuple{
                Attribute{"note", &NoteFunction::m_note, Note(), MidiRanges::NOTE},
                Attribute{"velocity", &NoteFunction::m_velocity, DEFAULT_VELOCITY, MidiRanges::DATA_BYTE},
            });
    }

    void execute() override { this->play(STATUS, static_cast<char>(m_note.getNumber()), m_velocity, this->m_channel); }

    short getD1() const override { return m_note.getNumber(); }
    void setD1(short d1) override { m_note = Note(static_cast<std::uint8_t>(d1)); }
    char getD2() const override { return m_velocity; }
    void setD2(char d2) override { m_velocity = d2; }

protected:
    static constexpr char DEFAULT_VELOCITY = 100;

    Note m_note{std::uint8_t{60}};
    char m_velocity = DEFAULT_VELOCITY;
};

class MidiNoteOn final : public NoteFunction<MidiNoteOn, MidiMessage::NoteOn> {
public:
    using NoteFunction::NoteFunction;

    Zones::Zone getZoneRange() const override;
};

class MidiNoteOff final : public NoteFunction<MidiNoteOff, MidiMessage::NoteOff> {
public:
    using NoteFunction::NoteFunction;
};

// Sends a Note Off, because existing set-ups rely on it. It is shown and edited as key pressure.
class MidiKeyPressure final : public ChannelFunction<MidiKeyPressure, MidiMessage::KeyPressure> {
public:
    using ChannelFunction::ChannelFunction;

    static auto attributes() {
        return std::tuple_cat(ChannelFunction::attributes(),
                              std::tuple{
                                  Attribute{"key", &MidiKeyPressure::m_key, 0, MidiRanges::DATA_BYTE},
                                  Attribute{"pressure", &MidiKeyPressure::m_pressure, 0, MidiRanges::DATA_BYTE},
                              });
    }

    void execute() override { play(MidiMessage::NoteOff, m_key, m_pressure, m_channel); }

    short getD1() const override { return m_key; }
    void setD1(short d1) override { m_key = static_cast<char>(d1); }
    char getD2() const override { return m_pressure; }
    void setD2(char d2) override { m_pressure = d2; }

private:
    char m_key = 60;
    char m_pressure = 0;
};

class MidiControllerChange final : public ChannelFunction<MidiControllerChange, MidiMessage::ControllerChange> {
public:
    using ChannelFunction::ChannelFunction;

    static auto attributes() {
        constexpr char VALUE_IF_MISSING = 100;  // A new function has 0.
        return std::tuple_cat(
            ChannelFunction::attributes(),
            std::tuple{
                Attribute{"controller", &MidiControllerChange::m_controller, 0, MidiRanges::DATA_BYTE},
                Attribute{"value", &MidiControllerChange::m_value, VALUE_IF_MISSING, MidiRanges::DATA_BYTE},
            });
    }

    void execute() override { play(MidiMessage::ControllerChange, m_controller, m_value, m_channel); }

    short getD1() const override { return m_controller; }
    void setD1(short d1) override { m_controller = static_cast<char>(d1); }
    char getD2() const override { return m_value; }
    void setD2(char d2) override { m_value = d2; }

private:
    char m_controller = 0;
    char m_value = 0;
};

class MidiProgramChange final : public ChannelFunction<MidiProgramChange, MidiMessage::ProgramChange> {
public:
    using ChannelFunction::ChannelFunction;

    static auto attributes() {
        return std::tuple_cat(
            ChannelFunction::attributes(),
            std::tuple(Attribute{"program", &MidiProgramChange::m_program, 0, MidiRanges::DATA_BYTE}));
    }

    void execute() override { play(MidiMessage::ProgramChange, m_program, 0, m_channel); }

    short getD1() const override { return m_program; }
    void setD1(short d1) override { m_program = static_cast<char>(d1); }

private:
    char m_program = 0;
};

class MidiChannelPressure final : public ChannelFunction<MidiChannelPressure, MidiMessage::ChannelPressure> {
public:
    using ChannelFunction::ChannelFunction;

    static auto attributes() {
        return std::tuple_cat(
            ChannelFunction::attributes(),
            std::tuple(Attribute{"pressure", &MidiChannelPressure::m_pressure, 0, MidiRanges::DATA_BYTE}));
    }

    void execute() override { play(MidiMessage::ChannelPressure, m_pressure, 0, m_channel); }

    short getD1() const override { return m_pressure; }
    void setD1(short d1) override { m_pressure = static_cast<char>(d1); }

private:
    char m_pressure = 0;
};

// A 14-bit value in two data bytes. Higher bits stay in the second one.
constexpr char getLowValueByte(short value) {
    return static_cast<char>(value & 0x7f);
}
constexpr char getHighValueByte(short value) {
    return static_cast<char>(value >> 7);
}

class MidiPitchBend final : public ChannelFunction<MidiPitchBend, MidiMessage::PitchBend> {
public:
    using ChannelFunction::ChannelFunction;

    static auto attributes() {
        return std::tuple_cat(ChannelFunction::attributes(),
                              std::tuple(Attribute{"value", &MidiPitchBend::m_value, 0, MidiRanges::DATA_WORD}));
    }

    void execute() override {
        play(MidiMessage::PitchBend, getLowValueByte(m_value), getHighValueByte(m_value), m_channel);
    }

    short getD1() const override { return m_value; }
    void setD1(short d1) override { m_value = d1; }

private:
    static constexpr short CENTRE = 8192;

    short m_value = CENTRE;  // 0 if the attribute is missing.
};

class MidiSongPosition final : public MidiFunction<MidiSongPosition, MidiMessage::SongPosition> {
public:
    using MidiFunction::MidiFunction;

    static auto attributes() {
        return std::tuple_cat(MidiFunction::attributes(),
                              std::tuple(Attribute{"value", &MidiSongPosition::m_value, 0, MidiRanges::DATA_WORD}));
    }

    void execute() override {
        play(MidiMessage::SongPosition, getLowValueByte(m_value), getHighValueByte(m_value), NOT_SET);
    }

    short getD1() const override { return m_value; }
    void setD1(short d1) override { m_value = d1; }

private:
    short m_value = 0;
};

// Sends a system event, which belongs to no zone, although its function stores one.
void postSystemEvent(MirelIF& mirel, MidiMessage::MessageType status, char d1, char output);

template <class Self, MidiMessage::MessageType STATUS>
class SystemFunction : public MidiFunction<Self, STATUS> {
public:
    using MidiFunction<Self, STATUS>::MidiFunction;

    void execute() override { postSystemEvent(this->mirel(), STATUS, 0, this->m_output); }
};

class MidiSongSelect final : public SystemFunction<MidiSongSelect, MidiMessage::SongSelect> {
public:
    using SystemFunction::SystemFunction;

    static auto attributes() {
        return std::tuple_cat(
            SystemFunction::attributes(),
            std::tuple(Attribute{"songNumber", &MidiSongSelect::m_songNumber, 0, MidiRanges::DATA_BYTE}));
    }

    void execute() override { postSystemEvent(mirel(), MidiMessage::SongSelect, m_songNumber, m_output); }

    short getD1() const override { return m_songNumber; }
    void setD1(short d1) override { m_songNumber = static_cast<char>(d1); }

private:
    char m_songNumber = 0;
};

class MidiBusSelect final : public SystemFunction<MidiBusSelect, MidiMessage::UnofficialBusSelect> {
public:
    using SystemFunction::SystemFunction;

    static auto attributes() {
        return std::tuple_cat(
            SystemFunction::attributes(),
            std::tuple(Attribute{"busNumber", &MidiBusSelect::m_busNumber, 0, MidiRanges::DATA_BYTE}));
    }

    void execute() override { postSystemEvent(mirel(), MidiMessage::UnofficialBusSelect, m_busNumber, m_output); }

    short getD1() const override { return m_busNumber; }
    void setD1(short d1) override { m_busNumber = static_cast<char>(d1); }

private:
    char m_busNumber = 0;
};

class MidiTuneRequest final : public SystemFunction<MidiTuneRequest, MidiMessage::TuneRequest> {
public:
    using SystemFunction::SystemFunction;
};

class MidiEndOfSysEx final : public SystemFunction<MidiEndOfSysEx, MidiMessage::EndOfSysex> {
public:
    using SystemFunction::SystemFunction;
};

class MidiTimingTick final : public SystemFunction<MidiTimingTick, MidiMessage::TimingTick> {
public:
    using SystemFunction::SystemFunction;
};

class MidiStartSong final : public SystemFunction<MidiStartSong, MidiMessage::StartSong> {
public:
    using SystemFunction::SystemFunction;
};

class MidiContinueSong final : public SystemFunction<MidiContinueSong, MidiMessage::ContinueSong> {
public:
    using SystemFunction::SystemFunction;
};

class MidiStopSong final : public SystemFunction<MidiStopSong, MidiMessage::StopSong> {
public:
    using SystemFunction::SystemFunction;
};

class MidiActiveSensing final : public SystemFunction<MidiActiveSensing, MidiMessage::ActiveSensing> {
public:
    using SystemFunction::SystemFunction;
};

class MidiSystemReset final : public SystemFunction<MidiSystemReset, MidiMessage::SystemReset> {
public:
    using SystemFunction::SystemFunction;
};

}
