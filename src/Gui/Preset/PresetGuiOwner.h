#pragma once

#include <string>
#include <vector>

namespace Gui::Preset {

// A screen whose settings can be kept as presets. [gui]
class PresetGuiOwner {
public:
    virtual ~PresetGuiOwner() = default;

    // Keeps what the screen shows under a name: all of it, or what is selected. A preset of this name is replaced.
    virtual void addPreset(const std::string& name, bool selectedOnly) = 0;

    virtual void editPreset(const std::string& oldName, const std::string& newName) = 0;
    virtual void deletePreset(const std::string& name) = 0;

    virtual std::vector<std::string> getPresetNames() = 0;
};

}
