#pragma once

#include "Host/cli/script/ScriptContext.h"

namespace Host::Cli {

// "print WHAT": prints a part of the desk's current state. Throws ScriptError.
void runPrint(const ScriptContext& context);

}
