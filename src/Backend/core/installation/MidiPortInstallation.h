#pragma once

namespace Backend {

// Makes the driver of the virtual MIDI port known to the system, or forgotten. The user is told what goes wrong.
// [installer]
class MidiPortInstallation {
public:
    static constexpr const char* MIREL_PORT_FILE_NAME = "mirelmidiport.dll";
    static constexpr const char* MIREL_PORT_NAME = "Mirel Console";

    // Whether the system has a MIDI input of that name.
    static bool virtualMidiPortExists();

    // Does nothing if the port works.
    static void install();

    // Removes what install set.
    static void uninstall();
};

}
