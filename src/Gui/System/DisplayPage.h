#pragma once

#include "Gui/System/SetupPage.h"

namespace Backend {
class RegistrySettings;
}

namespace Gui::System {

// The log's appearance. [gui]
class DisplayPage : public SetupPage {
public:
    DisplayPage(MirelGuiIF& gui, Backend::RegistrySettings& settings);

private:
    void initialize() override;
    void apply() override;

    Backend::RegistrySettings& m_settings;
};

}
