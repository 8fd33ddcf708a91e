#pragma once

#include <cstdint>
#include <string>

namespace Gui {

constexpr int MIDI_CHANNELS = 16;

// [any] A channel, from 0, that somebody may have stored; the first one for what is none.
constexpr int limitChannel(int channel) {
    return channel >= 0 && channel < MIDI_CHANNELS ? channel : 0;
}

// [any] A velocity that somebody typed, in a signed byte; 0 for text without a number.
std::int8_t readVelocity(const std::string& text);

// [any] How many pixels of the mouse make one step. It divides, so it is at least 1, whatever was typed.
int readMouseSensitivity(const std::string& text);

}
