#pragma once

#include <string>
#include <vector>

namespace Host::Cli {

// [main] "mirel ports": lists the MIDI inputs and outputs. Returns the exit status.
int runPorts(const std::vector<std::string>& arguments);

}
