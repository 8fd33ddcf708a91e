#pragma once

namespace Platform {

// [any] Names the calling thread for debuggers and for the system's tools. Names that are too long for the system are
// cut; a system without names ignores it.
void nameCurrentThread(const char* name);

}
