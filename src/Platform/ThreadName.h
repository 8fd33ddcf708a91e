#pragma once

namespace Platform {

// [any] Names the calling thread for debuggers and system tools. Cuts names too long for the system; does nothing on a
// system without thread names.
void nameCurrentThread(const char* name);

}
