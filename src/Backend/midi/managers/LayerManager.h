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

// The layers of the current program. Every change is reported to the window and sent to the engine as a whole new list,
// before which all sounding notes are ended. [backend]
class LayerManager {
public:
    // The folder of its preset files, inside the desk's data folder.
    static constexpr const char* PRESET_FOLDER = "Layer Presets";

    LayerManager(MirelIF& mirel, MessageManagerMaster& master,
                 const SequenceManagement::SequencePresetManager& sequences);

    LayerManager(const LayerManager&) = delete;
    LayerManager& operator=(const LayerManager&) = delete;

    LayerMessageManager& getMessageManager() { return m_messageManager; }
    const LayerList& getLayerList() const { return m_layers; }
    const PresetFolder& getPresets() const { return m_presets; }

    // Loads the built-in list, whose one layer takes the values in the settings.
    void loadDefaultLayers();

    // Reads a Layers element; if its merge attribute is set, the layers are added.
    void readXml(const XmlElement& element);

    // Writes a Layers element, indented by this many tabs: all layers, or the selected ones to be merged.
    void writeXml(std::ostream& stream, int indent, const std::vector<LayerId>& selected) const;

    // Removes all layers.
    void clear();

    // A preset without a file changes nothing.
    void loadPreset(const std::string& name);
    void savePreset(const std::string& name, const std::vector<LayerId>& selected);
    void renamePreset(const std::string& oldName, const std::string& newName);
    void deletePreset(const std::string& name);

    // Stores each layer at the place given by its id, growing the list if necessary.
    void updateLayers(const std::vector<Layer>& layers, bool notifyGui);
    void setLayerList(const LayerList& layers, bool notifyGui);

    // Selects only these layers.
    void selectLayers(const std::vector<LayerId>& ids);

    // Set a value of the first layer; do nothing if there is none.
    void setFirstVelocity(int velocity);
    void setFirstChannel(int channel);
    void setFirstUseNoteStack(bool useNoteStack);

    // Selects a single layer: the next or previous one, or one by its number. Does nothing without such a layer.
    void dataSelectLayer(const SelectType& type);

    // These act on the layer with a number, the selected ones or all; next and previous pick none.
    void changeLayerTranspose(const SelectType& type, const RelativeFixedValue& value);
    void changeLayerVelocity(const SelectType& type, const RelativeFixedValue& value);
    void changeLayerMute(const SelectType& type, const OnOffToggle& value);
    void changeLayerMono(const SelectType& type, const OnOffToggle& value);
    void changeLayerSolo(const SelectType& type, const OnOffToggle& value);
    void changeLayerNoteToggle(const SelectType& type, const NoteToggle& value);

private:
    void sendPresetNames();
    // An id that would make the list grow beyond this is a mistake.
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
