#include "Gui/Rules/values/TypedNumber.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

namespace Gui {

std::int32_t readTypedNumber(std::string_view text) {
    using Limits = std::numeric_limits<std::int32_t>;
    const long long number = std::strtoll(std::string(text).c_str(), nullptr, 10);
    return static_cast<std::int32_t>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

}
