#pragma once

#include <string_view>

namespace Backend {

// [any] Whether a name given by the user can be a file's name in its folder, and doesn't lead anywhere else.
bool isUsableFileName(std::string_view name);

}
