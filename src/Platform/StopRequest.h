#pragma once

#include <chrono>

namespace Platform {

// [main] From now on, what asks the program to end (an interrupt from the terminal, the end of the session) or to pause
// is only remembered. Once for a process.
void watchForStopRequests();

// [any] Waits until the program is asked to end, at most this long. True if it was asked.
[[nodiscard]] bool waitForStopRequest(std::chrono::milliseconds limit);

// [any] Whether the program was asked to pause (Ctrl+Z in a terminal) since the last pause. Never on systems that have
// no such thing.
bool isPauseRequested();

// [main] Pauses the whole program, until the user has it go on. Returns at once where nobody could do that.
void pauseProgram();

}
