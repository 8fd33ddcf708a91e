#pragma once

#include <string>
#include <vector>

namespace Gui::Preset {

// A screen whose settings can be saved as presets. [gui]
class PresetGuiOwner {
public:
    virtual ~PresetGuiOwner() = default;

    // Saves what the screen shows under a name: all of it, or the selection. Replaces a preset of that name.
    virtual void addPreset(const std::string& name, bool selectedOnly) = 0;

    virtual void editPreset(const std::string& oldName, const std::string& newName) = 0;
    virtual void deletePreset(const std::string& name) = 0;

    virtual std::vector<std::string> getPresetNames() = 0;
};

}
