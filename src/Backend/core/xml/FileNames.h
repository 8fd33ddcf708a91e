#pragma once

#include <string_view>

namespace Backend {

// [any] Whether a name given by the user can be that of a file in its folder, and leads nowhere else.
bool isUsableFileName(std::string_view name);

}
