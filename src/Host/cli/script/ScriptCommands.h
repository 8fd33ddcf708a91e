#pragma once

#include "Host/cli/script/ScriptDesk.h"
#include "Host/cli/script/ScriptReader.h"

namespace Host::Cli {

// Executes one command of a script. Throws ScriptError, having done nothing, for a line that makes no sense.
void runScriptCommand(const ScriptLine& line, ScriptReader& reader, ScriptDesk& desk);

}
