#pragma once

namespace Platform {

// [any] Suspends the calling thread for at least this many milliseconds.
void sleepMilliseconds(unsigned milliseconds);

// [any] The same for a thread that may have windows: it answers what other threads send to them meanwhile. Whatever it
// sleeps for may need such an answer first.
void sleepAnsweringWindows(unsigned milliseconds);

}
