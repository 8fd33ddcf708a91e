// The factory for systems without the desk's windows.
#include "Gui/MirelGuiFactory.h"

namespace Gui {

MirelGuiIF* MirelGuiFactory::createMirelGui(Backend::MirelIF&, const Backend::RegistrySettings&,
                                            const std::vector<Backend::MidiEngine::MidiInputPort>&,
                                            const std::vector<Backend::MidiEngine::MidiOutputPort>&,
                                            const std::vector<std::string>&, bool) {
    return nullptr;
}

}
