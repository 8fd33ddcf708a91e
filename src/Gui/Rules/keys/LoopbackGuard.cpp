#include "Gui/Rules/keys/LoopbackGuard.h"

#include "Gui/Rules/texts/TextCut.h"

#include <algorithm>

namespace Gui {

namespace {

constexpr const char* LOOPBACK_NAMES[] = {"MIDI Yoke", "Internal MIDI"};
constexpr const char* NOT_FOUND = " (Not Found)";
constexpr std::size_t MAX_LINE = 100;

}

bool isLoopbackPort(const std::string& name) {
    return std::any_of(std::begin(LOOPBACK_NAMES), std::end(LOOPBACK_NAMES),
                       [&](const char* part) { return name.find(part) != std::string::npos; });
}

bool wouldLoop(const std::vector<SetupPort>& outputs, const std::vector<SetupPort>& inputs) {
    return std::any_of(outputs.begin(), outputs.end(), [&](const SetupPort& output) {
        return output.enabled && isLoopbackPort(output.name) &&
               std::any_of(inputs.begin(), inputs.end(),
                           [&](const SetupPort& input) { return input.enabled && input.name == output.name; });
    });
}

std::string describeSetupPort(const SetupPort& port) {
    return cutText(port.name + (port.found ? "" : NOT_FOUND), MAX_LINE);
}

}
