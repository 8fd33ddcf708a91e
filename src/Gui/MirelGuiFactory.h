#pragma once

#include "Backend/midi/MidiPort.h"

#include <string>
#include <vector>

namespace Backend {
class MirelIF;
class RegistrySettings;
}

namespace Gui {

class MirelGuiIF;

// Creates the desk's window. The build decides which implementation it has: the screens, or nothing.
class MirelGuiFactory {
public:
    // [backend] A new GUI with copies of what it is given, not yet on the screen; null in a build without windows. The
    // caller owns it.
    static MirelGuiIF* createMirelGui(Backend::MirelIF& mirel, const Backend::RegistrySettings& settings,
                                      const std::vector<Backend::MidiEngine::MidiInputPort>& inputs,
                                      const std::vector<Backend::MidiEngine::MidiOutputPort>& outputs,
                                      const std::vector<std::string>& sequencePresets, bool isVstPlugin);
};

}
