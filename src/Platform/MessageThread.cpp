#include "Platform/MessageThread.h"

#include "Platform/AddressWait.h"
#include "Platform/MessageQueue.h"
#include "Platform/Sleep.h"
#include "Platform/ThreadName.h"

#include <atomic>
#include <mutex>
#include <string>
#include <thread>

namespace Platform {

namespace {

constexpr unsigned RETRY_MILLISECONDS = 10;

// The steps of a start, in which creator and new thread take turns.
constexpr std::uint32_t CREATED = 0;
constexpr std::uint32_t ID_KNOWN = 1;
constexpr std::uint32_t RELEASED = 2;

void waitUntilAtLeast(std::atomic<std::uint32_t>& step, std::uint32_t wanted) {
    for (std::uint32_t now = step.load(); now < wanted; now = step.load())
        waitWhileEqual(step, now);
}

}

struct MessageThread::State {
    MessageQueue queue{CAPACITY};
    std::atomic<DWORD> id{0};
    std::atomic<bool> running{false};
    std::atomic<std::uint32_t> step{CREATED};
    std::mutex lifecycle;  // Serialises start and join, nothing else.
    std::thread thread;

    void advance(std::uint32_t next) {
        step.store(next);
        wakeAll(step);
    }

    void run(const std::string& name, const std::function<void()>& body) {
        id.store(currentThreadId());
        nameCurrentThread(name.c_str());
        MessageQueue::setOfCurrentThread(&queue);
        advance(ID_KNOWN);
        waitUntilAtLeast(step, RELEASED);
        body();
        MessageQueue::setOfCurrentThread(nullptr);
        queue.close();
    }
};

MessageThread::MessageThread() : m_state(std::make_unique<State>()) {}

MessageThread::~MessageThread() {
    join();
}

void MessageThread::start(const char* name, std::function<void()> body) {
    const std::lock_guard lock(m_state->lifecycle);
    if (m_state->thread.joinable())
        return;
    m_state->step.store(CREATED);
    m_state->thread = std::thread(
        [state = m_state.get(), name = std::string(name), body = std::move(body)] { state->run(name, body); });
    waitUntilAtLeast(m_state->step, ID_KNOWN);
    m_state->queue.open();
    m_state->running.store(true);
    m_state->advance(RELEASED);
}

DWORD MessageThread::id() const {
    return m_state->id.load();
}

bool MessageThread::isRunning() const {
    return m_state->running.load();
}

bool MessageThread::post(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_state->queue.post(message, wParam, lParam);
}

void MessageThread::postUntilAccepted(UINT message, WPARAM wParam, LPARAM lParam) {
    // This thread may have a window to which the other one sends something before it goes on with its queue.
    while (!post(message, wParam, lParam))
        sleepAnsweringWindows(RETRY_MILLISECONDS);
}

bool MessageThread::get(MSG& message) {
    return m_state->queue.get(message);
}

bool MessageThread::tryGet(MSG& message) {
    return m_state->queue.tryGet(message);
}

void MessageThread::waitUntilIdle() {
    m_state->queue.waitUntilIdle();
}

bool MessageThread::isIdle() const {
    return m_state->queue.isIdle();
}

void MessageThread::join() {
    const std::lock_guard lock(m_state->lifecycle);
    if (!m_state->thread.joinable())
        return;
    m_state->thread.join();
    m_state->running.store(false);
}

void MessageThread::stop(UINT message) {
    if (!isRunning())
        return;
    // An open queue that refuses a post is full; a closed one belongs to a thread that is ending.
    while (!post(message, 0, 0) && m_state->queue.isOpen())
        sleepMilliseconds(RETRY_MILLISECONDS);
    join();
}

}
