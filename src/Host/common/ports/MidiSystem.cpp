#include "Host/common/ports/MidiSystem.h"

#include <map>

namespace Host {

std::vector<MidiPortId> numberCopies(const std::vector<std::string>& names) {
    std::map<std::string, int> counts;
    std::vector<MidiPortId> ids;
    ids.reserve(names.size());
    for (const std::string& name : names)
        ids.push_back({name, ++counts[name]});
    return ids;
}

}
