#pragma once

#include "Gui/System/SetupPage.h"

namespace Backend {
class RegistrySettings;
}

namespace Gui::System {

// The initial settings of keys' events, the mouse, and the window. [gui]
class GeneralPage : public SetupPage {
public:
    // Settings of the host's window that are not offered keep their values.
    GeneralPage(MirelGuiIF& gui, Backend::RegistrySettings& settings, bool offersAlwaysOnTop,
                bool offersMetallicBorder);

private:
    void initialize() override;
    void apply() override;
    void fillChannels();

    Backend::RegistrySettings& m_settings;
    bool m_offersAlwaysOnTop;
    bool m_offersMetallicBorder;
};

}
