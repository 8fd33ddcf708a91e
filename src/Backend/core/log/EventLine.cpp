#include "Backend/core/log/EventLine.h"

#include "Backend/midi/MidiNames.h"

namespace Backend::Display {

using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr const char* LINE_END = "\r\n";

std::string number(int value) {
    return std::to_string(value);
}

std::string inParentheses(const std::string& text) {
    return " (" + text + ")";
}

}

std::string describeEvent(const MirelMidiMessage& message) {
    constexpr int D2_WEIGHT = 128;
    const std::string name = message.getEventName();
    const std::string channelAndName = "\t" + number(message.getChannel() + 1) + "\t" + name;
    const std::string nameAlone = "\t\t" + name;
    const char d1 = message.getD1();
    const std::string value1 = "\t" + number(d1);
    const std::string value2 = "\t" + number(message.getD2());
    const std::string bothValues = "\t" + number(message.getD2() * D2_WEIGHT + d1);
    switch (message.getStatus()) {
        case MidiMessage::NoteOff:
        case MidiMessage::NoteOn:
            return channelAndName + value1 + inParentheses(getNoteName(d1, true)) + value2 + LINE_END;
        case MidiMessage::KeyPressure: return channelAndName + value1 + value2 + LINE_END;
        case MidiMessage::ControllerChange:
            return channelAndName + value1 + inParentheses(MidiEngine::controllerName(d1)) + value2 + LINE_END;
        case MidiMessage::ProgramChange:
            return channelAndName + value1 + inParentheses(MidiEngine::programName(d1)) + LINE_END;
        case MidiMessage::ChannelPressure: return channelAndName + value1 + LINE_END;
        case MidiMessage::PitchBend: return channelAndName + bothValues + LINE_END;
        case MidiMessage::SystemExclusive: return channelAndName + LINE_END;
        case MidiMessage::SongPosition: return nameAlone + bothValues + LINE_END;
        case MidiMessage::SongSelect:
        case MidiMessage::UnofficialBusSelect: return nameAlone + value1 + LINE_END;
        case MidiMessage::TuneRequest:
        case MidiMessage::EndOfSysex:
        case MidiMessage::TimingTick:
        case MidiMessage::StartSong:
        case MidiMessage::ContinueSong:
        case MidiMessage::StopSong:
        case MidiMessage::ActiveSensing:
        case MidiMessage::SystemReset: return nameAlone + LINE_END;
        default: return std::string("-") + LINE_END;
    }
}

}
