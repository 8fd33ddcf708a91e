#pragma once

#include <string>
#include <vector>

namespace Host::Cli {

// [main] "mirel render": plays a standard MIDI file through layers and zones into another one. Returns the exit status.
int runRender(const std::vector<std::string>& arguments);

}
