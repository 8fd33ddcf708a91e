// What a desk is to play and where, when nobody has said it exactly.
#pragma once

#include "Host/common/ports/PortRow.h"

#include <string>
#include <vector>

namespace Host {

// [any] The index of a program by its name or else by its number from 1; -1 if there is none.
int findProgram(const std::vector<std::string>& names, const std::string& wanted);

// [any] An output that can be heard, for a desk whose default output (-1: none) is none of the computer's; -1 if there
// is no need or no such output. One that is only absent for a while stays the user's choice.
int findBetterOutput(const std::vector<PortRow>& outputs, int present);

}
