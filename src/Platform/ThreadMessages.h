#pragma once

namespace Platform {

// [any] Takes all messages that wait for the calling thread. Those for windows are dispatched, those for no window are
// dropped. False as soon as one is WM_QUIT.
[[nodiscard]] bool dispatchThreadMessages();

}
