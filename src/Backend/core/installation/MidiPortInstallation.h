#pragma once

namespace Backend {

// Registers and unregisters the driver of the virtual MIDI port. Errors are reported to the user. [installer]
class MidiPortInstallation {
public:
    static constexpr const char* MIREL_PORT_FILE_NAME = "mirelmidiport.dll";
    static constexpr const char* MIREL_PORT_NAME = "Mirel Console";

    // Whether the system has a MIDI input with that name.
    static bool virtualMidiPortExists();

    // Does nothing if the port works.
    static void install();

    // Removes what install set.
    static void uninstall();
};

}
