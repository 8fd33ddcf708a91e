#include "Backend/midi/managers/ZoneMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/core/xml/Text.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/managers/ZoneManager.h"
#include "Backend/midi/managers/ZoneMessages.h"

namespace Backend::Zones {

using namespace Messages;

namespace {

void setTranspose(ZoneManager& zones, ZoneId id, int transpose) {
    zones.setTranspose(id, Text::lowByte(transpose));
}

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(SET_TRANSPOSE, &setTranspose),
    on(SELECT_ZONE, &ZoneManager::selectZone),
    on(SELECT_ZONES, &ZoneManager::selectZones));
// clang-format on

}

ZoneMessageManager::ZoneMessageManager(MessageManagerMaster& master, ZoneManager& zones)
    : MessageManager(master), m_zones(zones) {}

void ZoneMessageManager::postSetTranspose(ZoneId id, int transpose) {
    post(SET_TRANSPOSE, id, transpose);
}

void ZoneMessageManager::postSelectZone(const SelectType& type) {
    post(SELECT_ZONE, type);
}

void ZoneMessageManager::postSelectZones(const std::vector<ZoneId>& ids) {
    post(SELECT_ZONES, ids);
}

bool ZoneMessageManager::wantMessage(unsigned int message) {
    return ZONE_RANGE.contains(message);
}

void ZoneMessageManager::handleMessage(const MSG& message) {
    ROWS.handle(m_zones, message);
}

void ZoneMessageManager::disposeMessage(const MSG& message) {
    FAMILY.dispose(message);
}

}
