#pragma once

#include "Backend/midi/layers/LayerList.h"
#include "Gui/Layers/LayerGuiMessageManager.h"
#include "Gui/Layers/MainPanel.h"
#include "Gui/Layers/SettingsPanel.h"
#include "Gui/Preset/PresetGuiOwner.h"
#include "Gui/Rules/selection/OrderedSelection.h"
#include "Gui/Utils/SkinPanel.h"

#include <cstdint>
#include <string>
#include <vector>

class NoteToggle;
class RelativeFixedValue;
class SelectType;

namespace Gui::Layers {

// The layers of the program. [gui]
class LayerPanel : public SkinPanel, public Preset::PresetGuiOwner {
public:
    // [backend] Takes a copy of the layers.
    explicit LayerPanel(MirelGuiIF& gui);

    // Adds the sub-panels. Call it once, when the window exists.
    void setupPanels();

    MainPanel& getMainPanel() { return m_mainPanel; }
    SettingsPanel& getSettingsPanel() { return m_settingsPanel; }
    LayerGuiMessageManager& getMessageManager() { return m_messageManager; }

    // The copy of the desk's layers, and which of them are marked on the screen, by their places.
    Backend::Layers::LayerList& getLayerList() { return m_layers; }
    Selection<std::int32_t>& getSelection() { return m_selection; }

    // The layer that was marked last, from which the next one is counted; -1 if there is none.
    std::int32_t getLastSelected() const { return m_lastSelected; }

    // Take over the desk's changes, and repaint what shows them. An id that is not a place in the list is ignored.
    void setLayers(const std::vector<Backend::Layers::Layer>& layers);
    void setLayerList(const Backend::Layers::LayerList& layers);  // Takes all marks away.
    void setSelected(std::int32_t id, bool selected);
    void setTranspose(std::int32_t id, const RelativeFixedValue& transpose);
    void setVelocity(std::int32_t id, const RelativeFixedValue& velocity);
    void setMute(std::int32_t id, bool mute);
    void setMono(std::int32_t id, bool mono);
    void setSolo(std::int32_t id, bool solo);
    void setToggle(std::int32_t id, const NoteToggle& toggle);

    // Marks another layer for the settings instead of the one marked last: the next or previous one, or a specific one.
    void editSelect(const SelectType& type);

    void setPresetNames(const std::vector<std::string>& names) { m_presetNames = names; }

    void addPreset(const std::string& name, bool selectedOnly) override;
    void editPreset(const std::string& oldName, const std::string& newName) override;
    void deletePreset(const std::string& name) override;
    std::vector<std::string> getPresetNames() override { return m_presetNames; }

private:
    template <class Value>
    void setField(std::int32_t id, Value Backend::Layers::Layer::*field, const Value& value);

    void setButton(std::int32_t id, bool Backend::Layers::Layer::*button, bool state);
    void forgetMarks();

    Backend::Layers::LayerList m_layers;
    std::vector<std::string> m_presetNames;
    OrderedSelection<std::int32_t> m_selection;
    std::int32_t m_lastSelected = -1;
    LayerGuiMessageManager m_messageManager{*this};
    MainPanel m_mainPanel;
    SettingsPanel m_settingsPanel;
};

}
