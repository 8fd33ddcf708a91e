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

// 1 to 19; the fine halves 33 to 51 have the same names.
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

// By program, in General MIDI's families of eight.
// clang-format off
constexpr std::array<const char*, 128> PROGRAM_NAMES = {
    "Acoustic Grand", "Bright Acoustic", "Electric Grand", "Honky-Tonk", "Electric Piano 1", "Electric Piano 2", "Harpsichord", "Clavinet",
    "Celesta", "Glockenspiel", "Music Box", "Vibraphone", "Marimba", "Xylophone", "Tubular Bells", "Dulcimer",
    "Drawbar Organ", "Percussive Organ", "Rock Organ", "Church Organ", "Reed Organ", "Accordion", "Harmonica", "Tango Accordion",
    "Nylon String Guitar", "Steel String Guitar", "Electric Jazz Guitar", "Electric Clean Guitar", "Electric Muted Guitar", "Overdriven Guitar", "Distortion Guitar", "Guitar Harmonics",
    "Acoustic Bass", "Electric Bass (finger)", "Electric Bass (pick)", "Fretless Bass", "Slap Bass 1", "Slap Bass 2", "Synth Bass 1", "Synth Bass 2",
    "Violin", "Viola", "Cello", "Contrabass", "Tremolo Strings", "Pizzicato Strings", "Orchestral Harp", "Timpani",
    "String Ensemble 1", "String Ensemble 2", "Synth Strings 1", "Synth Strings 2", "Choir Aahs", "Voice Oohs", "Synth Voice", "Orchestra Hit",
    "Trumpet", "Trombone", "Tuba", "Muted Trumpet", "French Horn", "Brass Section", "Synth Brass 1", "Synth Brass 2",
    "Soprano Sax", "Alto Sax", "Tenor Sax", "Baritone Sax", "Oboe", "English Horn", "Bassoon", "Clarinet",
    "Piccolo", "Flute", "Recorder", "Pan Flute", "Blown Bottle", "Shakuhachi", "Whistle", "Ocarina",
    "Lead 1 (square)", "Lead 2 (sawtooth)", "Lead 3 (calliope)", "Lead 4 (chiff)", "Lead 5 (charang)", "Lead 6 (voice)", "Lead 7 (fifths)", "Lead 8 (bass+lead)",
    "Pad 1 (new age)", "Pad 2 (warm)", "Pad 3 (polysynth)", "Pad 4 (choir)", "Pad 5 (bowed)", "Pad 6 (metallic)", "Pad 7 (halo)", "Pad 8 (sweep)",
    "FX 1 (rain)", "FX 2 (soundtrack)", "FX 3 (crystal)", "FX 4 (atmosphere)", "FX 5 (brightness)", "FX 6 (goblins)", "FX 7 (echoes)", "FX 8 (sci-fi)",
    "Sitar", "Banjo", "Shamisen", "Koto", "Kalimba", "Bagpipe", "Fiddle", "Shanai",
    "Tinkle Bell", "Agogo", "Steel Drums", "Woodblock", "Taiko Drum", "Melodic Tom", "Synth Drum", "Reverse Cymbal",
    "Guitar Fret Noise", "Breath Noise", "Seashore", "Bird Tweet", "Telephone Ring", "Helicopter", "Applause", "Gunshot",
};
// clang-format on

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

const char* programName(char number) {
    const auto index = static_cast<unsigned char>(number);
    return index < PROGRAM_NAMES.size() ? PROGRAM_NAMES[index] : UNDEFINED;
}

}
