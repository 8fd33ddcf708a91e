#pragma once

#include "Backend/core/messages/MessageManager.h"
#include "Backend/midi/LayerId.h"

#include <string>
#include <vector>

namespace Backend::Layers {

struct Layer;
class LayerList;
class LayerManager;

// How other threads reach the layers. The operation of LayerManager with the same name carries out each post on the
// backend thread. The poster's objects are copied.
class LayerMessageManager : public MessageManager {
public:
    LayerMessageManager(MessageManagerMaster& master, LayerManager& layers);

    // [any]
    void postUpdateLayers(const std::vector<Layer>& layers, bool notifyGui);
    void postSetLayerList(const LayerList& layers, bool notifyGui);
    void postLoadPreset(const std::string& name);
    void postRenamePreset(const std::string& oldName, const std::string& newName);
    void postDeletePreset(const std::string& name);
    void postSavePreset(const std::string& name, const std::vector<LayerId>& selected);
    void postSelectLayers(const std::vector<LayerId>& ids);

    bool wantMessage(unsigned int message) override;
    void handleMessage(const MSG& message) override;
    void disposeMessage(const MSG& message) override;

private:
    LayerManager& m_layers;
};

}
