#pragma once

#include "Host/cli/check/ElementFormat.h"

#include <string_view>

namespace Host::Cli {

// [any] A function's element by its tag, made from the backend's list of functions; null for any other tag.
const ElementFormat* findFunctionFormat(std::string_view tag);

}
