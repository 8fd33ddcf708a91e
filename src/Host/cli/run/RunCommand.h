#pragma once

#include <string>
#include <vector>

namespace Host::Cli {

// [main] "mirel run ARGUMENTS": plays in real time on the computer's MIDI ports until it is ended. The exit status.
int runRun(const std::vector<std::string>& arguments);

}
