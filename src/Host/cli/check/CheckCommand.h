#pragma once

#include <string>
#include <vector>

namespace Host::Cli {

// [main] "mirel check": reports what the desk would ignore in files or replace by a default. Returns the exit status.
int runCheck(const std::vector<std::string>& arguments);

}
