#include "Platform/MessageThread.h"
#include "Platform/ThreadName.h"

#include <pthread.h>
#include <unistd.h>

#include <string>

namespace Platform {

DWORD currentThreadId() {
    thread_local const DWORD id = static_cast<DWORD>(gettid());
    return id;
}

void nameCurrentThread(const char* name) {
    constexpr std::size_t LONGEST = 15;
    pthread_setname_np(pthread_self(), std::string(name).substr(0, LONGEST).c_str());
}

}
