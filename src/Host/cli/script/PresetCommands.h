#pragma once

#include "Host/cli/script/ScriptContext.h"

namespace Host::Cli {

// "preset load|save|rename|delete KIND NAME ...", where KIND is keys, controls or layers. Throws ScriptError.
void runPreset(const ScriptContext& context);

}
