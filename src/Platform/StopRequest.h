#pragma once

#include <chrono>

namespace Platform {

// [main] From now on, requests to end the program (an interrupt from the terminal, the end of the session) or to pause
// it are only recorded. Once per process.
void watchForStopRequests();

// [any] Waits until the program is asked to end, at most this long. True if it was asked.
[[nodiscard]] bool waitForStopRequest(std::chrono::milliseconds limit);

// [any] Whether the program was asked to pause (Ctrl+Z in a terminal) since the last pause. Always false on systems
// without pauses.
bool isPauseRequested();

// [main] Pauses the whole program until the user resumes it. Returns at once if nobody could resume it.
void pauseProgram();

}
