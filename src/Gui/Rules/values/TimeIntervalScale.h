#pragma once

#include "Backend/midi/TimeIntervalType.h"

#include <cstdint>
#include <string>

// How a knob of time values turns: converts between a value in ppq and a position 0 to 127. The knob is inverted:
// position 0 is the longest value, 127 the shortest. All [any].
namespace Gui::TimeIntervalScale {

constexpr int LAST_POSITION = 127;

// The knob's limits in ppq, at least 1 each.
struct Range {
    std::int32_t min;
    std::int32_t max;
};

// The text of the value box: the short name of a note length, such as "1/8 D", or "?" for a length without one; in ppq
// mode the number. "?" for an invalid mode.
std::string displayText(Backend::TimeIntervalType::Mode mode, std::int32_t value);

// Maps a value from one range to another, to the nearest number. Only the magnitude is clamped to its range; a negative
// value gives the negative of its magnitude's result. An empty range gives outLow.
int scale(int inLow, int inHigh, int value, int outLow, int outHigh);

// The nearest value within the range, whose limits may come in either order.
std::int32_t clamp(Range range, std::int32_t value);

// The knob's position for a value. Note lengths are spaced evenly, numbers by their logarithm.
int positionOf(Backend::TimeIntervalType::Mode mode, Range range, std::int32_t value);

// The reverse, within the range. A position outside 0 to 127 counts as the nearest one.
std::int32_t valueAt(Backend::TimeIntervalType::Mode mode, Range range, int position);

// The value this many wheel steps away, within the range: whole note lengths, or ppq.
std::int32_t valueAfterSteps(Backend::TimeIntervalType::Mode mode, Range range, std::int32_t value, int steps);

// The same for the wheel above the knob, which turns by positions, or in reverse order of note lengths.
std::int32_t valueAfterKnobSteps(Backend::TimeIntervalType::Mode mode, Range range, std::int32_t value, int steps);

// The value after dragging this many pixels up from startPosition, with sensitivity pixels per position. A sensitivity
// of 0 or less counts as 1.
std::int32_t valueAfterDrag(Backend::TimeIntervalType::Mode mode, Range range, int startPosition, int pixelsUp,
                            int sensitivity);

// The direction of the knob's pointer, clockwise from the right, in radians.
double pointerAngle(int position);

// The pointer's length in pixels, on a knob of this diameter.
int pointerLength(int diameter, double angle);

}
