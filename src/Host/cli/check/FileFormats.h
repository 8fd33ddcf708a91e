// The desk's files, as their readers expect them.
#pragma once

#include "Host/cli/check/ElementFormat.h"

#include <string_view>

namespace Host::Cli {

// [any] The format of a program, bank, preset or sequence file by its root's tag; null for any other tag.
const ElementFormat* findFileFormat(std::string_view rootTag);

}
