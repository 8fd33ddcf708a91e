#pragma once

#include "Backend/midi/layers/LayerList.h"
#include "Gui/Layers/LayerGuiMessageManager.h"
#include "Gui/Layers/MainPanel.h"
#include "Gui/Layers/SettingsPanel.h"
#include "Gui/Preset/PresetGuiOwner.h"
#include "Gui/Utils/SkinPanel.h"

namespace Gui::Layers {

// The layers of the program. [gui]
class LayerPanel : public SkinPanel, public Preset::PresetGuiOwner {
public:
    // [backend] Takes a copy of the layers.
    explicit LayerPanel(MirelGuiIF& gui);

    // Adds the sub-panels. Once, when the window is there.
    void setupPanels();

    MainPanel& getMainPanel() { return m_mainPanel; }
    SettingsPanel& getSettingsPanel() { return m_settingsPanel; }
    LayerGuiMessageManager& getMessageManager() { return m_messageManager; }

    // The layers, as the desk last told them. One whose id is no place in the list is ignored.
    Backend::Layers::LayerList& getLayerList() { return m_layers; }
    void setLayer(const Backend::Layers::Layer& layer);
    void setLayerList(Backend::Layers::LayerList layers) { m_layers = std::move(layers); }

    void addPreset(const std::string& name, bool selectedOnly) override;
    void editPreset(const std::string& oldName, const std::string& newName) override;
    void deletePreset(const std::string& name) override;
    std::vector<std::string> getPresetNames() override;

private:
    Backend::Layers::LayerList m_layers;
    LayerGuiMessageManager m_messageManager{*this};
    MainPanel m_mainPanel;
    SettingsPanel m_settingsPanel;
};

}
