#include "Backend/midi/managers/ZoneMessageManager.h"

#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/core/xml/Text.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/managers/ZoneManager.h"
#include "Backend/midi/managers/ZoneMessages.h"

namespace Backend::Zones {

using namespace Messages;

ZoneMessageManager::ZoneMessageManager(MessageManagerMaster& master, ZoneManager& zones)
    : MessageManager(master), m_zones(zones) {}

void ZoneMessageManager::postSetTranspose(ZoneId id, int transpose) {
    m_master.postMessage(SET_TRANSPOSE, static_cast<WPARAM>(id), transpose);
}

void ZoneMessageManager::postSelectZone(const SelectType& type) {
    m_master.postMessage(SELECT_ZONE, releaseCopy<WPARAM>(type), 0);
}

void ZoneMessageManager::postSelectZones(const std::vector<ZoneId>& ids) {
    m_master.postMessage(SELECT_ZONES, releaseCopy<WPARAM>(ids), 0);
}

bool ZoneMessageManager::wantMessage(unsigned int message) {
    return ZONE_RANGE.contains(message);
}

void ZoneMessageManager::handleMessage(const MSG& message) {
    switch (message.message) {
        case SET_TRANSPOSE:
            m_zones.setTranspose(Text::lowByte(static_cast<std::int32_t>(message.wParam)),
                                 Text::lowByte(static_cast<std::int32_t>(message.lParam)));
            break;
        case SELECT_ZONE: m_zones.selectZone(*takePayload<SelectType>(message.wParam)); break;
        case SELECT_ZONES: m_zones.selectZones(*takePayload<std::vector<ZoneId>>(message.wParam)); break;
        default: break;
    }
}

void ZoneMessageManager::disposeMessage(const MSG& message) {
    switch (message.message) {
        case SELECT_ZONE: takePayload<SelectType>(message.wParam); break;
        case SELECT_ZONES: takePayload<std::vector<ZoneId>>(message.wParam); break;
        default: break;
    }
}

}
