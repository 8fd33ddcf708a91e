#pragma once

#include <string>
#include <vector>

namespace Host::Cli {

// [main] "mirel script": drives a desk from a text file and prints what it plays. Returns the exit status.
int runScript(const std::vector<std::string>& arguments);

}
