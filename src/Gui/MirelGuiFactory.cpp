#include "Gui/MirelGuiFactory.h"

#include "Gui/MirelGui.h"

namespace Gui {

MirelGuiIF* MirelGuiFactory::createMirelGui(Backend::MirelIF& mirel, const Backend::RegistrySettings& settings,
                                            const std::vector<Backend::MidiEngine::MidiInputPort>& inputs,
                                            const std::vector<Backend::MidiEngine::MidiOutputPort>& outputs,
                                            const std::vector<std::string>& sequencePresets, bool isVstPlugin) {
    return std::make_unique<MirelGui>(mirel, settings, inputs, outputs, sequencePresets, isVstPlugin).release();
}

}
