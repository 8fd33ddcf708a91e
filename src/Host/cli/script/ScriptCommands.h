#pragma once

#include "Host/cli/script/ScriptDesk.h"
#include "Host/cli/script/ScriptReader.h"

namespace Host::Cli {

// Carries one command of a script out. Throws ScriptError for a line that can't be understood; then nothing was done.
void runScriptCommand(const ScriptLine& line, ScriptReader& reader, ScriptDesk& desk);

}
