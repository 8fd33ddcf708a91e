#include "Gui/Rules/values/ValueWheel.h"

#include "Backend/core/xml/Text.h"
#include "Backend/midi/Note.h"

#include <algorithm>
#include <utility>

namespace Gui {

namespace {

constexpr std::int64_t OCTAVE = 12;
constexpr std::int64_t LARGE_STEP = 10;
constexpr std::int64_t LIMIT = 127;  // For a field without a limit, in both directions.

struct Limits {
    std::int64_t min;
    std::int64_t max;
};

// There are no notes below 0 or above 127.
Limits getLimits(const ValueField& field) {
    const bool noSign = field.takesDigitsOnly || field.isNote;
    Limits limits{noSign ? 0 : -LIMIT, LIMIT};
    if (field.minIsZero)
        limits.min = 0;
    else if (field.min != 0)
        limits.min = field.min;
    if (field.maxIsZero)
        limits.max = 0;
    else if (field.max != 0)
        limits.max = field.max;
    if (limits.max < limits.min)
        std::swap(limits.min, limits.max);
    if (field.isNote)
        limits = {std::max<std::int64_t>(limits.min, 0), std::min(limits.max, LIMIT)};
    return limits;
}

// An empty text may stand for the 0 of a field with signs.
bool hasSign(std::string_view text) {
    return text.empty() || text.front() == '+' || text.front() == '-';
}

std::string showSigned(std::int64_t value) {
    if (value == 0)
        return {};
    return (value > 0 ? "+" : "") + std::to_string(value);
}

std::string showUnsigned(std::int64_t value, const ValueField& field) {
    if (field.isNote)
        return Backend::getNoteName(static_cast<char>(value), true);
    if (value == 0 && field.showsZeroAsBlank)
        return {};
    return std::to_string(value);
}

}

std::optional<std::string> turnValue(std::string_view text, int steps, bool large, const ValueField& field) {
    const Limits limits = getLimits(field);
    std::int64_t change = steps;
    if (large)
        change *= field.isNote || field.jumpsByTwelve ? OCTAVE : LARGE_STEP;
    const std::int64_t value = readValue(text, field) + change;
    if (value < limits.min || value > limits.max)
        return std::nullopt;

    const bool isSigned = hasSign(Backend::Text::trim(text)) && !field.takesDigitsOnly && limits.min < 0;
    return isSigned ? showSigned(value) : showUnsigned(value, field);
}

}
