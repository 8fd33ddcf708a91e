#pragma once

#include "Backend/core/files/PresetFolder.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/managers/LayerMessageManager.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

class OnOffToggle;
class SelectType;

namespace Backend {
class MessageManagerMaster;
class MirelIF;
class XmlElement;
}

namespace Backend::Layers {

// The layers of the current program. Every change reaches the engine as a whole new list, before which all that sounds
// ends, and the window. [backend]
class LayerManager {
public:
    // The folder of its preset files below the one for the desk's data.
    static constexpr const char* PRESET_FOLDER = "Layer Presets";

    LayerManager(MirelIF& mirel, MessageManagerMaster& master,
                 const SequenceManagement::SequencePresetManager& sequences);

    LayerManager(const LayerManager&) = delete;
    LayerManager& operator=(const LayerManager&) = delete;

    LayerMessageManager& getMessageManager() { return m_messageManager; }
    const LayerList& getLayerList() const { return m_layers; }
    const PresetFolder& getPresets() const { return m_presets; }

    // The built-in list, whose one layer takes what the settings hold for it.
    void loadDefaultLayers();

    // From a Layers element; with its attribute merge the layers are added.
    void readXml(const XmlElement& element);

    // As a Layers element, indent tabs deep: all layers, or the selected ones to be merged.
    void writeXml(std::ostream& stream, int indent, const std::vector<LayerId>& selected) const;

    // Removes all layers.
    void clear();

    // A preset that has no file changes nothing.
    void loadPreset(const std::string& name);
    void savePreset(const std::string& name, const std::vector<LayerId>& selected);
    void renamePreset(const std::string& oldName, const std::string& newName);
    void deletePreset(const std::string& name);

    // Stores each layer at the place of its id, for which the list grows if need be.
    void updateLayers(const std::vector<Layer>& layers, bool notifyGui);
    void setLayerList(const LayerList& layers, bool notifyGui);

    // Selects just these layers.
    void selectLayers(const std::vector<LayerId>& ids);

    // Settings of the first layer; without one nothing happens.
    void setFirstVelocity(int velocity);
    void setFirstChannel(int channel);
    void setFirstUseNoteStack(bool useNoteStack);

    // Selects one layer alone: the next or previous one, or one by its number. Without such a layer nothing happens.
    void dataSelectLayer(const SelectType& type);

    // These act on the layer of a number, the selected ones or all; next and previous pick none.
    void changeLayerTranspose(const SelectType& type, const RelativeFixedValue& value);
    void changeLayerVelocity(const SelectType& type, const RelativeFixedValue& value);
    void changeLayerMute(const SelectType& type, const OnOffToggle& value);
    void changeLayerMono(const SelectType& type, const OnOffToggle& value);
    void changeLayerSolo(const SelectType& type, const OnOffToggle& value);
    void changeLayerNoteToggle(const SelectType& type, const NoteToggle& value);

private:
    void sendPresetNames();
    // A list that grows to more than this by an id alone is a mistake.
    static constexpr std::int32_t MAX_LAYERS = 1 << 16;

    void sendToEngine();
    void sendAll();
    void select(Layer& layer, bool selected);
    void changeLayers(const SelectType& type, const std::function<void(Layer&)>& change);
    template <class Row>
    void changeAmount(const SelectType& type, const RelativeFixedValue& value, RelativeFixedValue Layer::*amount,
                      Row message);
    template <class Row>
    void changeFlag(const SelectType& type, const OnOffToggle& value, bool Layer::*flag, Row message);
    void changeFirst(const std::function<void(Layer&)>& change);

    MirelIF& m_mirel;
    const SequenceManagement::SequencePresetManager& m_sequences;
    LayerList m_layers;
    PresetFolder m_presets;
    LayerMessageManager m_messageManager;
};

}
