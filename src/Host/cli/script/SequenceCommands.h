#pragma once

#include "Host/cli/script/ScriptContext.h"

namespace Host::Cli {

// "sequence add NAME TEXT", "sequence rename OLD NEW", "sequence delete NAME". Throws ScriptError.
void runSequence(const ScriptContext& context);

}
