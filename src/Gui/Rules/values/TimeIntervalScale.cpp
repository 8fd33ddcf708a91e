#include "Gui/Rules/values/TimeIntervalScale.h"

#include "Backend/midi/TimeInterval.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace Gui::TimeIntervalScale {

using Backend::TimeInterval;
using Backend::TimeIntervalType;

namespace {

// By the index of the note length, from 1.
constexpr std::array<const char*, TimeInterval::LAST_INDEX> SHORT_NAMES = {
    "1/64 T", "1/32 T", "1/32", "1/16 T", "1/16",  "1/8 T", "1/16 D", "1/8", "1/4 T", "1/8 D", "1/4",
    "1/2 T",  "1/4 D",  "1/2",  "1 T",    "1/2 D", "1",     "1 D",    "2",   "4",     "8",     "16",
};

int indexOf(std::int32_t value) {
    return TimeInterval(value).getNearestIndex();
}

// Zero, which has no logarithm, is treated as the shortest length.
double logarithm(std::int32_t value) {
    return std::log(static_cast<double>(std::max(value, 1)));
}

int notePosition(Range range, std::int32_t value) {
    int low = indexOf(range.min);
    int high = indexOf(range.max);
    int index = indexOf(value);
    if (low > high) {
        std::swap(low, high);
        index = low + high - index;
    }
    return LAST_POSITION - std::clamp(scale(low, high, index, 0, LAST_POSITION), 0, LAST_POSITION);
}

int ppqPosition(Range range, std::int32_t value) {
    const double whole = logarithm(range.max) - logarithm(range.min);
    if (whole == 0)
        return LAST_POSITION;
    const double part = (logarithm(value) - logarithm(range.min)) / whole;
    const double position = std::floor(LAST_POSITION - part * LAST_POSITION + 0.5);
    return static_cast<int>(std::clamp<double>(position, 0, LAST_POSITION));
}

std::int32_t noteAt(Range range, int position) {
    const int low = indexOf(range.min);
    const int high = indexOf(range.max);
    return TimeInterval::fromIndex(low + high - scale(0, LAST_POSITION, position, low, high)).getPpq();
}

std::int32_t ppqAt(Range range, int position) {
    const auto low = static_cast<float>(logarithm(range.min));
    const auto high = static_cast<float>(logarithm(range.max));
    const float exponent = (high - low) * static_cast<float>(LAST_POSITION - position) / LAST_POSITION + low;
    // The exponential of a logarithm may miss a whole number by a hair either way.
    return static_cast<std::int32_t>(std::lround(std::exp(exponent)));
}

// The note length this many entries after that of a value, within the range.
std::int32_t noteAfterSteps(Range range, std::int32_t value, int steps) {
    const auto [low, high] = std::minmax({indexOf(range.min), indexOf(range.max)});
    constexpr int ALL = TimeInterval::LAST_INDEX;
    return TimeInterval::fromIndex(std::clamp(indexOf(value) + std::clamp(steps, -ALL, ALL), low, high)).getPpq();
}

}

std::string displayText(TimeIntervalType::Mode mode, std::int32_t value) {
    if (mode == TimeIntervalType::ppq)
        return std::to_string(value);
    const int index = TimeInterval(value).getIndex();
    if (mode != TimeIntervalType::noteInterval || index == 0)
        return "?";
    return SHORT_NAMES[static_cast<std::size_t>(index - TimeInterval::FIRST_INDEX)];
}

int scale(int inLow, int inHigh, int value, int outLow, int outHigh) {
    if (inLow == inHigh)
        return outLow;
    const double size =
        std::clamp<double>(std::abs(static_cast<double>(value)), std::min(inLow, inHigh), std::max(inLow, inHigh));
    const double result = (outHigh - outLow) * (size - inLow) / (inHigh - inLow) + outLow;
    return static_cast<int>(std::trunc((value < 0 ? -result : result) + 0.5));
}

std::int32_t clamp(Range range, std::int32_t value) {
    return std::clamp(value, std::min(range.min, range.max), std::max(range.min, range.max));
}

int positionOf(TimeIntervalType::Mode mode, Range range, std::int32_t value) {
    return mode == TimeIntervalType::ppq ? ppqPosition(range, value) : notePosition(range, value);
}

std::int32_t valueAt(TimeIntervalType::Mode mode, Range range, int position) {
    const int inside = std::clamp(position, 0, LAST_POSITION);
    return clamp(range, mode == TimeIntervalType::ppq ? ppqAt(range, inside) : noteAt(range, inside));
}

std::int32_t valueAfterSteps(TimeIntervalType::Mode mode, Range range, std::int32_t value, int steps) {
    if (mode != TimeIntervalType::ppq)
        return clamp(range, noteAfterSteps(range, value, steps));
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t wanted = std::clamp<std::int64_t>(std::int64_t{value} + steps, Limits::min(), Limits::max());
    return clamp(range, static_cast<std::int32_t>(wanted));
}

std::int32_t valueAfterKnobSteps(TimeIntervalType::Mode mode, Range range, std::int32_t value, int steps) {
    const int turn = std::clamp(steps, -LAST_POSITION, LAST_POSITION);
    if (mode == TimeIntervalType::ppq)
        return valueAt(mode, range, positionOf(mode, range, value) + turn);
    return clamp(range, noteAfterSteps(range, value, -turn));
}

std::int32_t valueAfterDrag(TimeIntervalType::Mode mode, Range range, int startPosition, int pixelsUp,
                            int sensitivity) {
    return valueAt(mode, range, startPosition + pixelsUp / std::max(sensitivity, 1));
}

double pointerAngle(int position) {
    return position * 7 * std::numbers::pi / (4 * LAST_POSITION) + 5 * std::numbers::pi / 8;
}

int pointerLength(int diameter, double angle) {
    // The upper left of the disc comes out a pixel larger than the rest.
    const bool longer = angle >= 2.5 && angle <= 5.3;
    return diameter / 2 - 1 + (longer ? 1 : 0);
}

}
