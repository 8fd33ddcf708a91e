#pragma once

#include <array>

namespace Backend::FunctionManagement {

// The computer keyboard's presets that version 2 referred to by number, from 1.
inline constexpr std::array VERSION_2_COMPUTER_INPUT_PRESETS = {
    "001 - Zone 2 Position I",
    "002 - Zone 2 Position II",
    "003 - Zone 2 Position III",
    "004 - Zone 2 Position IV",
    "005 - Zone 2 Position V",
    "006 - Zone 2 Position VI",
    "007 - Zone 2 Position VII",
    "008 - Zone 2 Position I (down an octave)",
    "009 - Zone 2 Position II (down an octave)",
    "010 - Zone 2 Position III (down an octave)",
    "011 - Zone 2 Position IV (down an octave)",
    "012 - Zone 2 Position V (down an octave)",
    "013 - Zone 2 Position VI (down an octave)",
    "014 - Zone 2 Position VII (down an octave)",
    "015 - Zone 1 Position I",
    "016 - Zone 1 Position II",
    "017 - Zone 1 Position III",
    "018 - Zone 1 Position IV",
    "019 - Zone 1 Position V",
    "020 - Zone 1 Position VI",
    "021 - Zone 1 Position VII",
    "022 - Zone 1 Position I (down an octave)",
    "023 - Zone 1 Position II (down an octave)",
    "024 - Zone 1 Position III (down an octave)",
    "025 - Zone 1 Position IV (down an octave)",
    "026 - Zone 1 Position V (down an octave)",
    "027 - Zone 1 Position VI (down an octave)",
    "028 - Zone 1 Position VII (down an octave)",
    "000 - Default",
};

}
