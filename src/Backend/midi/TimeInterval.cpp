#include "Backend/midi/TimeInterval.h"

#include <algorithm>
#include <array>

namespace Backend {

namespace {

struct NamedLength {
    std::int32_t ppq;
    const char* name;
};

// In order of length; the first row has index 1.
constexpr std::array<NamedLength, TimeInterval::LAST_INDEX> LENGTHS = {{
    {20, "1/64 Triplet"}, {40, "1/32 Triplet"}, {60, "1/32"},           {80, "1/16 Triplet"}, {120, "1/16"},
    {160, "1/8 Triplet"}, {180, "1/16 Dotted"}, {240, "1/8"},           {320, "1/4 Triplet"}, {360, "1/8 Dotted"},
    {480, "1/4"},         {640, "1/2 Triplet"}, {720, "1/4 Dotted"},    {960, "1/2"},         {1280, "Whole Triplet"},
    {1440, "1/2 Dotted"}, {1920, "Whole"},      {2880, "Whole Dotted"}, {3840, "2 Whole"},    {7680, "4 Whole"},
    {15360, "8 Whole"},   {30720, "16 Whole"},
}};

constexpr std::int32_t QUARTER = 480;

}

TimeInterval TimeInterval::fromIndex(int index) {
    if (index < FIRST_INDEX || index > LAST_INDEX)
        return TimeInterval(QUARTER);
    return TimeInterval(LENGTHS[static_cast<std::size_t>(index - FIRST_INDEX)].ppq);
}

std::string TimeInterval::toString() const {
    const int index = getIndex();
    if (index == 0)
        return std::to_string(m_ppq);
    return LENGTHS[static_cast<std::size_t>(index - FIRST_INDEX)].name;
}

int TimeInterval::getIndex() const {
    const int index = getNearestIndex();
    return fromIndex(index) == *this ? index : 0;
}

int TimeInterval::getNearestIndex() const {
    const auto row = std::find_if(LENGTHS.begin(), LENGTHS.end() - 1,
                                  [this](const NamedLength& length) { return length.ppq >= m_ppq; });
    return static_cast<int>(row - LENGTHS.begin()) + FIRST_INDEX;
}

}
