#include "Gui/Output/CcPanel.h"

#include "Gui/ResourceIds.h"

namespace Gui::Output {

CcPanel::CcPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_CC) {
    setNoSpacing(true);
}

void CcPanel::displayEvent(const Backend::MidiEngine::MirelMidiMessage&) {}

}
