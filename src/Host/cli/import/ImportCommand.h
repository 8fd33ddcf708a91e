#pragma once

#include <string>
#include <vector>

namespace Host::Cli {

// [main] "mirel import": converts a version 2 file. Returns the exit status.
int runImport(const std::vector<std::string>& arguments);

}
