// Messages of the zones, as rows of what their first and second word carry.
#pragma once

#include "Backend/core/messages/MessageFamily.h"
#include "Backend/midi/ZoneId.h"

#include <vector>

class SelectType;

namespace Backend::Zones {

struct Zone;
class ZoneMap;

// clang-format off

// To the ZoneMessageManager.
namespace Messages {

inline constexpr Message<34969, ZoneId, int>               SET_TRANSPOSE;  // l: half-steps, by the low byte.
inline constexpr Message<34970, Heap<SelectType>>          SELECT_ZONE;
inline constexpr Message<34971, Heap<std::vector<ZoneId>>> SELECT_ZONES;

inline constexpr auto FAMILY = familyOf<ZONE_RANGE>(
    Unused<34968, 34972>(),
    SET_TRANSPOSE, SELECT_ZONE, SELECT_ZONES);

}

// To the window.
namespace WindowMessages {

inline constexpr Message<34969, Nothing, Heap<Zone>>    ZONE_CHANGED;
inline constexpr Message<34970, Nothing, Heap<ZoneMap>> ALL_ZONES_CHANGED;
inline constexpr Message<34971, ZoneId, bool>           SELECTED_CHANGED;  // Zone, on or off.

inline constexpr auto FAMILY = familyOf<ZONE_GUI_RANGE>(
    Unused<34968, 34972>(),
    ZONE_CHANGED, ALL_ZONES_CHANGED, SELECTED_CHANGED);

}

// clang-format on

}
