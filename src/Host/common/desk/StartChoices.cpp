#include "Host/common/desk/StartChoices.h"

#include "Host/common/ports/PortList.h"

#include <algorithm>
#include <charconv>

namespace Host {

int findProgram(const std::vector<std::string>& names, const std::string& wanted) {
    const auto found = std::find(names.begin(), names.end(), wanted);
    if (found != names.end())
        return static_cast<int>(found - names.begin());
    int number = 0;
    const char* const end = wanted.data() + wanted.size();
    const auto result = std::from_chars(wanted.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end)
        return -1;
    return number >= 1 && static_cast<std::size_t>(number) <= names.size() ? number - 1 : -1;
}

int findBetterOutput(const std::vector<PortRow>& outputs, int present) {
    const auto isHeard = [](const PortRow& row) {
        return row.available && row.settings.enabled && row.id.copy != PortList::BUILT_IN;
    };
    if (present >= 0 && static_cast<std::size_t>(present) < outputs.size() &&
        outputs[static_cast<std::size_t>(present)].id.copy != PortList::BUILT_IN)
        return -1;
    const auto better = std::find_if(outputs.begin(), outputs.end(), isHeard);
    return better == outputs.end() ? -1 : static_cast<int>(better - outputs.begin());
}

}
