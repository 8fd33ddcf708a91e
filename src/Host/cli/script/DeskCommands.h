#pragma once

#include "Host/cli/script/ScriptContext.h"

#include <string>

namespace Host::Cli {

// Executes a command that needs the whole desk. False if there is no such command. Throws ScriptError.
bool runDeskCommand(const std::string& name, const ScriptContext& context);

}
