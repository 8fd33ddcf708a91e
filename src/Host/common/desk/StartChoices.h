// What a desk plays, and where, when nobody has said so exactly.
#pragma once

#include "Host/common/ports/PortRow.h"

#include <string>
#include <vector>

namespace Host {

// [any] The index of a program by name or, failing that, by number from 1; -1 if there is none.
int findProgram(const std::vector<std::string>& names, const std::string& wanted);

// [any] An audible output for a desk whose default output (-1: none) is not one of the computer's; -1 if there is no
// need or no such output. An output that is only absent for a while remains the user's choice.
int findBetterOutput(const std::vector<PortRow>& outputs, int present);

}
