#pragma once

#include <chrono>

namespace Platform {

// [main] From now on, what asks the program to end (an interrupt from the terminal, the end of the session) is only
// remembered. Once for a process.
void watchForStopRequests();

// [any] Waits until the program is asked to end, at most this long. True if it was asked.
bool waitForStopRequest(std::chrono::milliseconds limit);

}
