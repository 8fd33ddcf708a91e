#include "Platform/ThreadMessages.h"

#include "Platform/MessageQueue.h"

namespace Platform {

bool dispatchThreadMessages() {
    MessageQueue* queue = MessageQueue::ofCurrentThread();
    MSG message;
    while (queue && queue->tryGet(message)) {
        if (message.message == WM_QUIT)
            return false;
    }
    return true;
}

}
