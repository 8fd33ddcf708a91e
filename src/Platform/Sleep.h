#pragma once

namespace Platform {

// [any] Suspends the calling thread for at least this many milliseconds.
void sleepMilliseconds(unsigned milliseconds);

// [any] The same, but what other threads send to windows of the calling one is answered, and may end the sleep early.
void sleepAnsweringMilliseconds(unsigned milliseconds);

}
