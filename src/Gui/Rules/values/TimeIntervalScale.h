#pragma once

#include "Backend/midi/TimeIntervalType.h"

#include <cstdint>
#include <string>

// How a knob of time values turns: between a value in ppq and a position 0 to 127. The knob is inverted: position 0 is
// the longest value, 127 the shortest. All [any].
namespace Gui::TimeIntervalScale {

constexpr int LAST_POSITION = 127;

// What the knob can reach, in ppq, 1 or more each.
struct Range {
    std::int32_t min;
    std::int32_t max;
};

// What the value box shows: the short name of a note length, such as "1/8 D", or "?" for a length without one; the
// number in ppq mode. "?" for a mode that doesn't exist.
std::string displayText(Backend::TimeIntervalType::Mode mode, std::int32_t value);

// Maps a value from one range to another, to the nearest number. Only the size of the value is cut to its range; a
// negative value gives the negative of what its size gives. An empty range gives outLow.
int scale(int inLow, int inHigh, int value, int outLow, int outHigh);

// The nearest value within the range, be it given either way round.
std::int32_t clamp(Range range, std::int32_t value);

// Where the knob stands. Note lengths lie evenly, numbers by their logarithm.
int positionOf(Backend::TimeIntervalType::Mode mode, Range range, std::int32_t value);

// The opposite, within the range. A position outside 0 to 127 counts as the nearest.
std::int32_t valueAt(Backend::TimeIntervalType::Mode mode, Range range, int position);

// The value so many steps of a wheel away, within the range: whole note lengths, or ppq.
std::int32_t valueAfterSteps(Backend::TimeIntervalType::Mode mode, Range range, std::int32_t value, int steps);

// The same with the wheel above the knob, which turns by positions, or against the order of the note lengths.
std::int32_t valueAfterKnobSteps(Backend::TimeIntervalType::Mode mode, Range range, std::int32_t value, int steps);

// The value after a drag from startPosition so many pixels up, at so many pixels for a position. A sensitivity of 0 or
// less counts as 1.
std::int32_t valueAfterDrag(Backend::TimeIntervalType::Mode mode, Range range, int startPosition, int pixelsUp,
                            int sensitivity);

// Where the knob's pointer points to, clockwise from the right, in radians.
double pointerAngle(int position);

// How long it is, in pixels, on a knob of this diameter.
int pointerLength(int diameter, double angle);

}
