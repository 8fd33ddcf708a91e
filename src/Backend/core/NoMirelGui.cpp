// The factory of a build without windows.
#include "Backend/core/MirelGuiFactory.h"

namespace Backend {

MirelGuiIF* MirelGuiFactory::createMirelGui(MirelIF&, const RegistrySettings&,
                                            const std::vector<MidiEngine::MidiInputPort>&,
                                            const std::vector<MidiEngine::MidiOutputPort>&,
                                            const std::vector<std::string>&, bool) {
    return nullptr;
}

}
