#pragma once

#include <string>
#include <vector>

namespace Host::Cli {

// [main] "mirel run": plays in real time on the computer's MIDI ports until it is ended. Returns the exit status.
int runRun(const std::vector<std::string>& arguments);

}
