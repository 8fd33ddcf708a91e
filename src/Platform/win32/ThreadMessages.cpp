#include "Platform/ThreadMessages.h"

#include "Platform/MessageQueue.h"

namespace Platform {

bool dispatchThreadMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        DispatchMessageA(&message);
        if (message.message == WM_QUIT)
            return false;
    }
    // A message thread has its own queue in addition to the system's.
    MessageQueue* queue = MessageQueue::ofCurrentThread();
    while (queue && queue->tryGet(message)) {
        if (message.message == WM_QUIT)
            return false;
    }
    return true;
}

}
