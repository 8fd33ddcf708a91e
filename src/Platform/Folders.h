#pragma once

#include <string>

namespace Platform {

// [any] The folder for the user's program data on this machine, created if missing; empty if there is none.
std::string userDataFolder();

}
