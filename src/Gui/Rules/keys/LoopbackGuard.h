#pragma once

#include <string>
#include <vector>

namespace Gui {

// A port as the setup shows it.
struct SetupPort {
    std::string name;
    bool found = false;
    bool enabled = false;
};

// [any] Whether a port is, by its name, one end of a cable inside the computer.
bool isLoopbackPort(const std::string& name);

// [any] Whether what is sent to one of the enabled outputs would come back as input, because both ends of a cable
// inside the computer are enabled.
bool wouldLoop(const std::vector<SetupPort>& outputs, const std::vector<SetupPort>& inputs);

// [any] A port's line in a list: its name, and whether it is missing. At most 100 bytes, in whole characters.
std::string describeSetupPort(const SetupPort& port);

}
