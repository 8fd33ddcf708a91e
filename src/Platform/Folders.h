#pragma once

#include <string>

namespace Platform {

// [any] The folder for data of the user's own programs on this machine, which is made if it is missing; empty if there
// is none.
std::string userDataFolder();

}
