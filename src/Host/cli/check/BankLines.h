#pragma once

#include "Host/cli/check/Complaint.h"

#include <string_view>

namespace Host::Cli {

// [any] What would go wrong where the desk puts programs into a bank and cuts them off by lines: tags of a program's
// frame that share a line, and what looks like a program and is none. content: a bank file that is well-formed.
Complaints checkBankLines(std::string_view content);

}
