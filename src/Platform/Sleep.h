#pragma once

namespace Platform {

// [any] Suspends the calling thread for at least this many milliseconds.
void sleepMilliseconds(unsigned milliseconds);

// [any] Like sleepMilliseconds, for a thread that may have windows: it keeps answering what other threads send to them,
// which whatever it sleeps for may need first.
void sleepAnsweringWindows(unsigned milliseconds);

}
