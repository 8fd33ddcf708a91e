#pragma once

#include "Host/common/ports/MidiSystem.h"

#include <cstdint>
#include <optional>

namespace Host {

// What a user sets for one port. Only the first setting applies to outputs.
struct PortSettings {
    static constexpr std::uint16_t ALL_CHANNELS = 0xffff;

    bool enabled = true;
    bool keepsChannels = false;             // Its events keep the channels they came with and bypass the layers.
    std::uint16_t channels = ALL_CHANNELS;  // Bit n: listens to channel n, from 0.

    bool operator==(const PortSettings&) const = default;
};

// One port that the desk knows of, present or not. Its index is its place in the list.
struct PortRow {
    MidiPortId id;
    PortSettings settings;
    bool available = false;
    std::optional<bool> keptEnabled;  // What is saved in place of settings.enabled while that is temporary.

    bool operator==(const PortRow&) const = default;
};

}
