#pragma once

#include "Backend/core/messages/MessageManager.h"
#include "Backend/midi/ZoneId.h"

#include <vector>

class SelectType;

namespace Backend::Zones {

class ZoneManager;

// How other threads reach the zones. The operation of ZoneManager with the same name carries out each post on the
// backend thread.
class ZoneMessageManager : public MessageManager {
public:
    ZoneMessageManager(MessageManagerMaster& master, ZoneManager& zones);

    // [any]
    void postSetTranspose(ZoneId id, int transpose);
    void postSelectZone(const SelectType& type);
    void postSelectZones(const std::vector<ZoneId>& ids);

    bool wantMessage(unsigned int message) override;
    void handleMessage(const MSG& message) override;
    void disposeMessage(const MSG& message) override;

private:
    ZoneManager& m_zones;
};

}
