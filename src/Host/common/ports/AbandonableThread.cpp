#include "Host/common/ports/AbandonableThread.h"

#include "Platform/Sleep.h"
#include "Platform/ThreadName.h"

#include <string>

namespace Host {

AbandonableThread::AbandonableThread(const char* name, std::function<void()> body)
    : m_hasEnded(std::make_shared<std::atomic<bool>>(false)),
      m_thread([name = std::string(name), body = std::move(body), hasEnded = m_hasEnded]() mutable {
          Platform::nameCurrentThread(name.c_str());
          body();
          body = nullptr;
          hasEnded->store(true);
      }) {}

AbandonableThread::~AbandonableThread() {
    if (!m_thread.joinable())
        return;
    if (m_hasEnded->load())
        m_thread.join();
    else
        m_thread.detach();
}

bool AbandonableThread::waitUntilEnded(std::chrono::steady_clock::time_point deadline) {
    // Only used on the way out, and over within moments unless something hangs, so polling is enough.
    while (!m_hasEnded->load()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        Platform::sleepMilliseconds(1);
    }
    if (m_thread.joinable())
        m_thread.join();
    return true;
}

}
