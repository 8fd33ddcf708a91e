#include "Backend/midi/MidiNames.h"

#include <algorithm>
#include <array>

namespace Backend::MidiEngine {

namespace {

constexpr std::array<EventName, 19> EVENT_NAMES = {{
    {MidiMessage::NoteOff, "Note Off", 2},
    {MidiMessage::NoteOn, "Note On", 2},
    {MidiMessage::KeyPressure, "Key Pressure", 2},
    {MidiMessage::ControllerChange, "Controller Change", 2},
    {MidiMessage::ProgramChange, "Program Change", 1},
    {MidiMessage::ChannelPressure, "Channel Pressure", 1},
    {MidiMessage::PitchBend, "Pitch Bend", 2},
    {MidiMessage::SystemExclusive, "System Exclusive", 2},
    {MidiMessage::SongPosition, "Song Position", 2},
    {MidiMessage::SongSelect, "Song Select", 1},
    {MidiMessage::UnofficialBusSelect, "Unofficial Bus Select", 1},
    {MidiMessage::TuneRequest, "Tune Request", 0},
    {MidiMessage::EndOfSysex, "End Of Sysex", 0},
    {MidiMessage::TimingTick, "Timing Tick", 0},
    {MidiMessage::StartSong, "Start Song", 0},
    {MidiMessage::ContinueSong, "Continue Song", 0},
    {MidiMessage::StopSong, "Stop Song", 0},
    {MidiMessage::ActiveSensing, "Active Sensing", 0},
    {MidiMessage::SystemReset, "System Reset", 0},
}};

constexpr const char* UNDEFINED = "Undefined";

struct ControllerName {
    std::size_t number;
    const char* name;
};

// 1 to 19; the fine halves 33 to 51 bear the same names.
constexpr std::array<ControllerName, 15> COARSE_NAMES = {{
    {1, "Modulation wheel"},
    {2, "Breath control"},
    {4, "Foot controller"},
    {5, "Portamento time"},
    {6, "Data Entry"},
    {7, "Channel Volume"},
    {8, "Balance"},
    {10, "Pan"},
    {11, "Expression Controller"},
    {12, "Effect control 1"},
    {13, "Effect control 2"},
    {16, "General Purpose Ctl #1"},
    {17, "General Purpose Ctl #2"},
    {18, "General Purpose Ctl #3"},
    {19, "General Purpose Ctl #4"},
}};

constexpr std::array<ControllerName, 42> OTHER_NAMES = {{
    {0, "Bank Select (MSB)"},
    {32, "Bank Select (LSB)"},
    {64, "Damper pedal on/off"},
    {65, "Portamento on/off"},
    {66, "Sustenuto on/off"},
    {67, "Soft pedal on/off"},
    {68, "Legato Footswitch"},
    {69, "Hold 2"},
    {70, "Sound Ctl 1 (Sound Variation)"},
    {71, "Sound Ctl 2 (Timbre)"},
    {72, "Sound Ctl 3 (Release Time)"},
    {73, "Sound Ctl 4 (Attack Time)"},
    {74, "Sound Ctl 5 (Brightness)"},
    {75, "Sound Ctl 6"},
    {76, "Sound Ctl 7"},
    {77, "Sound Ctl 8"},
    {78, "Sound Ctl 9"},
    {79, "Sound Ctl 10"},
    {80, "General Purpose Ctl #5"},
    {81, "General Purpose Ctl #6"},
    {82, "General Purpose Ctl #7"},
    {83, "General Purpose Ctl #8"},
    {84, "Portamento Control"},
    {91, "Effects 1 Depth"},
    {92, "Effects 2 Depth"},
    {93, "Effects 3 Depth"},
    {94, "Effects 4 Depth"},
    {95, "Effects 5 Depth"},
    {96, "Data entry +1"},
    {97, "Data entry -1"},
    {98, "NRPN LSB"},
    {99, "NRPN MSB"},
    {100, "RPN LSB"},
    {101, "RPN MSB"},
    {120, "All Sound Off"},
    {121, "Reset All Controllers"},
    {122, "Local control on/off"},
    {123, "All notes off"},
    {124, "Omni mode off"},
    {125, "Omni mode on"},
    {126, "Poly mode on/off"},
    {127, "Poly mode on"},
}};

constexpr std::size_t FINE_OFFSET = 32;

constexpr std::array<const char*, 128> makeControllerNames() {
    std::array<const char*, 128> names{};
    names.fill(UNDEFINED);
    for (const auto& row : COARSE_NAMES) {
        names[row.number] = row.name;
        names[row.number + FINE_OFFSET] = row.name;
    }
    for (const auto& row : OTHER_NAMES)
        names[row.number] = row.name;
    return names;
}

constexpr std::array<const char*, 128> CONTROLLER_NAMES = makeControllerNames();

}

const EventName* findEventName(std::uint32_t status) {
    const auto row = std::find_if(EVENT_NAMES.begin(), EVENT_NAMES.end(),
                                  [status](const EventName& name) { return name.status == status; });
    return row == EVENT_NAMES.end() ? nullptr : row;
}

const EventName* findEventName(std::string_view name) {
    const auto row = std::find_if(EVENT_NAMES.begin(), EVENT_NAMES.end(),
                                  [name](const EventName& candidate) { return candidate.name == name; });
    return row == EVENT_NAMES.end() ? nullptr : row;
}

const char* controllerName(char number) {
    const auto index = static_cast<unsigned char>(number);
    return index < CONTROLLER_NAMES.size() ? CONTROLLER_NAMES[index] : UNDEFINED;
}

}
