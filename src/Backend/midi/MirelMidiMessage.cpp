#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::MidiEngine {

namespace {

constexpr std::int32_t AT_ONCE = -1;

}

MirelMidiMessage::MirelMidiMessage(MidiMessage::MessageType status, char d1, char d2, char channel, char output,
                                   char zone, char input, std::int32_t ppq)
    : m_routing{zone, output, input, channel < 0},
      m_midiMessage(status, d1, d2, channel),
      m_timing{MidiEngineMessageType::Event, ppq} {}

MirelMidiMessage::MirelMidiMessage(std::uint64_t wparam, std::int64_t lparam)
    : m_routing{static_cast<char>(lparam >> 24 & 0xff), static_cast<char>(lparam & 0xff),
                static_cast<char>(lparam >> 16 & 0xff), (lparam & 0xffff) >= 256},
      m_midiMessage(wparam) {}

MirelMidiMessage::MirelMidiMessage(const MidiMessage& message, char output, char channel, char zone,
                                   const Cell& fromControl)
    : m_routing{zone, output, DEFAULT_INPUT, true}, m_midiMessage(message), m_fromControl(fromControl) {
    setChannel(channel);
}

MirelMidiMessage MirelMidiMessage::createAllSoundOffCC(char output, char channel) {
    return {MidiMessage::ControllerChange,
            MidiMessage::ALL_SOUND_OFF,
            0,
            channel,
            output,
            DEFAULT_ZONE,
            DEFAULT_INPUT,
            AT_ONCE};
}

MirelMidiMessage MirelMidiMessage::createAllControllersOffCC(char output, char channel) {
    return {MidiMessage::ControllerChange,
            MidiMessage::ALL_CONTROLLERS_OFF,
            0,
            channel,
            output,
            DEFAULT_ZONE,
            DEFAULT_INPUT,
            AT_ONCE};
}

MirelMidiMessage MirelMidiMessage::createSystemReset(char output) {
    return {MidiMessage::SystemReset, 0, 0, 0, output, DEFAULT_ZONE, DEFAULT_INPUT, AT_ONCE};
}

MirelMidiMessage MirelMidiMessage::createMirelReset() {
    return MirelMidiMessage(MidiEngineMessageType::Reset);
}

MirelMidiMessage MirelMidiMessage::createMirelHardReset() {
    return MirelMidiMessage(MidiEngineMessageType::HardReset);
}

std::int64_t MirelMidiMessage::getLparam() const {
    return std::int64_t{static_cast<unsigned char>(m_routing.zone)} << 24 |
           std::int64_t{static_cast<unsigned char>(m_routing.input)} << 16 |
           std::int64_t{m_routing.defaultChannel ? 1 : 0} << 8 |
           std::int64_t{static_cast<unsigned char>(m_routing.output)};
}

}
