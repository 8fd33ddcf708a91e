#pragma once

namespace Platform {

// [any] Takes all messages waiting for the calling thread. Dispatches those for windows and drops the others. Returns
// false as soon as one is WM_QUIT.
[[nodiscard]] bool dispatchThreadMessages();

}
