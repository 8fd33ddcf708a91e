#pragma once

namespace Platform {

// [any] Suspends the calling thread for at least this many milliseconds.
void sleepMilliseconds(unsigned milliseconds);

}
