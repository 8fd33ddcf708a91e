#include "Gui/Rules/texts/ProgramListText.h"

namespace Gui {

std::string describeProgram(int index, const std::string& name) {
    return std::to_string(index + 1) + " - " + name;
}

std::vector<std::string> describePrograms(const std::vector<std::string>& names, int currentIndex,
                                          const std::string& currentName) {
    std::vector<std::string> lines;
    for (const std::string& name : names) {
        const int index = static_cast<int>(lines.size());
        lines.push_back(describeProgram(index, index == currentIndex ? currentName : name));
    }
    return lines;
}

}
