#pragma once

#include <cstdint>
#include <string>

namespace Gui {

constexpr int MIDI_CHANNELS = 16;

// [any] A stored channel, from 0; the first one if it is invalid.
constexpr int limitChannel(int channel) {
    return channel >= 0 && channel < MIDI_CHANNELS ? channel : 0;
}

// [any] A typed velocity, in a signed byte; 0 for text without a number.
std::int8_t readVelocity(const std::string& text);

// [any] How many pixels of mouse movement make one step. Used as a divisor, so it is at least 1, whatever was typed.
int readMouseSensitivity(const std::string& text);

}
