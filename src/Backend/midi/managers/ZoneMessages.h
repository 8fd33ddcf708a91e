// Messages of the zones. w and l are the two words; "heap" is a pointer to a copy that the receiver destroys.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::Zones {

// To the ZoneMessageManager.
namespace Messages {

enum Number : UINT {
    SET_TRANSPOSE = 34969,  // w: zone; l: half-steps, of which the low byte counts.
    SELECT_ZONE = 34970,    // w: heap SelectType.
    SELECT_ZONES = 34971,   // w: heap vector of ZoneId.
};

}

// To the window.
namespace WindowMessages {

enum Number : UINT {
    ZONE_CHANGED = 34969,       // l: heap Zone.
    ALL_ZONES_CHANGED = 34970,  // l: heap ZoneMap.
    SELECTED_CHANGED = 34971,   // w: zone; l: 1 or 0.
};

}

}
