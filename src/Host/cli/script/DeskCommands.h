#pragma once

#include "Host/cli/script/ScriptContext.h"

#include <string>

namespace Host::Cli {

// Carries out a command that needs the whole desk. False if there is none of this name. Throws ScriptError.
bool runDeskCommand(const std::string& name, const ScriptContext& context);

}
