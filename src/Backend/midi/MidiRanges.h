// The ranges of numbers that several kinds of elements store. -1 means none, or the default output or channel.
#pragma once

#include "Backend/core/xml/Attribute.h"

namespace Backend::MidiRanges {

inline constexpr NumberRange DATA_BYTE{0, 127};
inline constexpr NumberRange DATA_WORD{0, 16383};
inline constexpr NumberRange NOTE{0, 127};
inline constexpr NumberRange NOTE_OR_NONE{-1, 127};
inline constexpr NumberRange CHANNEL{-1, 15};
inline constexpr NumberRange OUTPUT{-1, 127};
inline constexpr NumberRange ZONE{-1, 127};

}
