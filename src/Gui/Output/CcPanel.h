#pragma once

#include "Gui/Utils/SkinPanel.h"

namespace Backend::MidiEngine {
class MirelMidiMessage;
}

namespace Gui::Output {

// The grid of controllers and other events. [gui]
class CcPanel : public SkinPanel {
public:
    explicit CcPanel(MirelGuiIF& gui);

    // Lights the cell of an event that was played.
    void displayEvent(const Backend::MidiEngine::MirelMidiMessage& message);
};

}
