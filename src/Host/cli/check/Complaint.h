#pragma once

#include <string>
#include <vector>

namespace Host::Cli {

// One thing that is wrong with a file.
struct Complaint {
    int line;  // From 1.
    std::string text;
};

using Complaints = std::vector<Complaint>;

}
