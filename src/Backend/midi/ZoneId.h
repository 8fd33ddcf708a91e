#pragma once

namespace Backend::Zones {

// The number of a zone, 0 to 127. Users see it plus one.
using ZoneId = char;

inline constexpr ZoneId MAX_ZONE = 127;

}
