#pragma once

#include "Host/cli/check/Complaint.h"

#include <string_view>

namespace Host::Cli {

// [any] What would go wrong when the desk, line by line, inserts programs into a bank or cuts them out: tags of a
// program's frame that share a line, and text that only looks like a program. content: a well-formed bank file.
Complaints checkBankLines(std::string_view content);

}
