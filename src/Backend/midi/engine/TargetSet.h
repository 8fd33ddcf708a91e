#pragma once

#include <array>
#include <cstdint>

namespace Backend::MidiEngine {

// The pairs of output (0 to 127) and channel (0 to 15) that one event has been sent to. All of it is [player, rt].
class TargetSet {
public:
    // True if the pair was not in the set yet.
    bool insert(char output, char channel) {
        std::uint16_t& channels = m_channels[static_cast<unsigned char>(output)];
        const auto bit = static_cast<std::uint16_t>(1u << static_cast<unsigned char>(channel));
        const bool isNew = (channels & bit) == 0;
        channels = static_cast<std::uint16_t>(channels | bit);
        return isNew;
    }

private:
    std::array<std::uint16_t, 128> m_channels{};
};

}
