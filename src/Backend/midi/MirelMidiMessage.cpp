#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::MidiEngine {

MirelMidiMessage::MirelMidiMessage(MidiMessage::MessageType status, char d1, char d2, char channel, char output,
                                   char zone, char input, std::int32_t ppq)
    : m_way{zone, output, input, channel < 0},
      m_midiMessage(status, d1, d2, channel),
      m_timing{MidiEngineMessageType::EVENT, ppq} {}

MirelMidiMessage::MirelMidiMessage(MidiMessage::MessageType status, char d1, char d2, const Routing& routing,
                                   const Arrival& arrival)
    : MirelMidiMessage(status, d1, d2, routing.channel, routing.output, routing.zone, arrival.input, arrival.ppq) {}

MirelMidiMessage::MirelMidiMessage(std::uint64_t wparam, std::int64_t lparam)
    : m_way{static_cast<char>(lparam >> 24 & 0xff), static_cast<char>(lparam & 0xff),
            static_cast<char>(lparam >> 16 & 0xff), (lparam & 0xffff) >= 256},
      m_midiMessage(wparam) {}

MirelMidiMessage::MirelMidiMessage(const MidiMessage& message, char output, char channel, char zone,
                                   const Cell& fromControl)
    : m_way{zone, output, DEFAULT_INPUT, true}, m_midiMessage(message), m_fromControl(fromControl) {
    setChannel(channel);
}

MirelMidiMessage::MirelMidiMessage(const MidiMessage& message, const Routing& routing, const Cell& fromControl)
    : MirelMidiMessage(message, routing.output, routing.channel, routing.zone, fromControl) {}

MirelMidiMessage MirelMidiMessage::createAllSoundOffCC(char output, char channel) {
    return {MidiMessage::ControllerChange, MidiMessage::ALL_SOUND_OFF, 0, {.output = output, .channel = channel}};
}

MirelMidiMessage MirelMidiMessage::createAllControllersOffCC(char output, char channel) {
    return {MidiMessage::ControllerChange, MidiMessage::ALL_CONTROLLERS_OFF, 0, {.output = output, .channel = channel}};
}

MirelMidiMessage MirelMidiMessage::createSystemReset(char output) {
    return {MidiMessage::SystemReset, 0, 0, {.output = output, .channel = 0}};
}

MirelMidiMessage MirelMidiMessage::createMirelReset() {
    return MirelMidiMessage(MidiEngineMessageType::RESET);
}

MirelMidiMessage MirelMidiMessage::createMirelHardReset() {
    return MirelMidiMessage(MidiEngineMessageType::HARD_RESET);
}

std::int64_t MirelMidiMessage::getLparam() const {
    return std::int64_t{static_cast<unsigned char>(m_way.zone)} << 24 |
           std::int64_t{static_cast<unsigned char>(m_way.input)} << 16 |
           std::int64_t{m_way.defaultChannel ? 1 : 0} << 8 | std::int64_t{static_cast<unsigned char>(m_way.output)};
}

}
