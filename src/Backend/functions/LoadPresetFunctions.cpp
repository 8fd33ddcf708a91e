#include "Backend/functions/LoadPresetFunctions.h"

#include "Backend/input/controls/ControlManager.h"
#include "Backend/midi/managers/LayerManager.h"

namespace Backend::FunctionManagement::Functions {

void LoadComputerInputPreset::execute() {
    mirel().loadComputerInputPreset(m_preset);
}

void LoadControlPreset::execute() {
    mirel().getControls().loadPreset(m_preset);
}

void LoadLayerPreset::execute() {
    mirel().getLayers().loadPreset(m_preset);
}

}
