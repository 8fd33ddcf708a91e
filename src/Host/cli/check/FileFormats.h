// The files of the desk, as their readers know them.
#pragma once

#include "Host/cli/check/ElementFormat.h"

#include <string_view>

namespace Host::Cli {

// [any] The format of a program, bank, preset or sequence file by the tag of its root; null for any other tag.
const ElementFormat* findFileFormat(std::string_view rootTag);

}
