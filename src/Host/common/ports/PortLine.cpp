#include "Host/common/ports/PortLine.h"

#include "Host/common/ports/MidiByteParser.h"
#include "Host/common/ports/OutputQueue.h"
#include "Host/common/ports/SoundingNotes.h"
#include "Host/common/ports/WakeSignal.h"
#include "Platform/MonotonicClock.h"

#include <array>
#include <atomic>
#include <mutex>
#include <utility>

namespace Host {

// Shared by the line and its thread, so that a thread that hangs keeps what it may still touch.
struct PortLine::State {
    enum class Wish { NONE, OPEN, CLOSE, FINISH };

    std::mutex mutex;  // Guards the next two; never held while the port is at work.
    Wish wish = Wish::NONE;
    Opener opener;

    std::atomic<bool> isWanted{false};
    std::atomic<bool> isOpen{false};
    std::atomic<bool> hasFailed{false};
    std::atomic<bool> endNotes{false};
    WakeSignal work;
    std::atomic<std::uint32_t> done{0};  // The signal's count up to which all work is done.
    OutputQueue queue;

    // Used by the line's thread only.
    std::unique_ptr<OpenMidiPort> port;
    SoundingNotes sounding;

    void ask(Wish newest, Opener newOpener);

    // What the thread does.
    void run();
    Wish takeWish(Opener& taken);
    bool doWish();
    void openPort(const Opener& taken);
    void closePort();
    void dropPort();
    void send(const OutputEvent& event);
    void endAll();
    bool doAll();
};

// The newest wish replaces one that the thread has not got to yet.
void PortLine::State::ask(Wish newest, Opener newOpener) {
    {
        const std::lock_guard lock(mutex);
        wish = newest;
        std::swap(opener, newOpener);
    }
    work.notify();
}

PortLine::State::Wish PortLine::State::takeWish(Opener& taken) {
    const std::lock_guard lock(mutex);
    taken = std::move(opener);
    opener = nullptr;
    return std::exchange(wish, Wish::NONE);
}

// False if the thread should end.
bool PortLine::State::doWish() {
    Opener taken;
    const Wish next = takeWish(taken);
    if (next != Wish::NONE)
        closePort();
    if (next == Wish::OPEN)
        openPort(taken);
    return next != Wish::FINISH;
}

void PortLine::State::openPort(const Opener& taken) {
    try {
        port = taken();
    } catch (...) {
        port = nullptr;  // Whatever a driver's library throws, the port is not open.
    }
    hasFailed = !port;
    isOpen = port != nullptr;
}

void PortLine::State::closePort() {
    isOpen = false;
    OutputEvent event;
    while (queue.pop(event))
        if (OwedEndings::isEnding(event))
            send(event);
    endAll();
    try {
        port = nullptr;
    } catch (...) {
        // It is gone either way.
    }
}

// The port has stopped working, so endings have nowhere to go.
void PortLine::State::dropPort() {
    hasFailed = true;
    isOpen = false;
    sounding = {};
    port = nullptr;
}

void PortLine::State::send(const OutputEvent& event) {
    if (!port)
        return;
    const std::array<std::uint8_t, 3> bytes = {event.status(), event.d1(), event.d2()};
    bool isSent = false;
    try {
        isSent = port->send(bytes.data(), 1 + MidiByteParser::dataBytesOf(event.status()), event.microseconds);
    } catch (...) {
        isSent = false;
    }
    if (isSent)
        sounding.sent(event);
    else
        dropPort();
}

void PortLine::State::endAll() {
    SoundingNotes ended = sounding;
    ended.end(Platform::monotonicMicroseconds(), [this](const OutputEvent& event) { send(event); });
}

// Does all pending work. False if the thread should end.
bool PortLine::State::doAll() {
    OutputEvent event;
    for (;;) {
        if (!doWish())
            return false;
        if (queue.pop(event)) {
            send(event);
            continue;
        }
        if (!endNotes.exchange(false))
            return true;
        // The request comes after what was queued before it.
        while (queue.pop(event))
            send(event);
        endAll();
        if (port)
            port->flush();
    }
}

void PortLine::State::run() {
    for (;;) {
        const std::uint32_t seen = work.now();
        if (!doAll())
            break;
        done = seen;
        work.wait(seen);
    }
}

PortLine::PortLine(std::string name) : m_state(std::make_shared<State>()), m_name(std::move(name)) {}

PortLine::~PortLine() {
    finish();
}

void PortLine::open(Opener opener) {
    if (m_isFinished)
        return;
    m_state->hasFailed = false;
    m_state->isWanted = true;
    m_state->ask(State::Wish::OPEN, std::move(opener));
    if (!m_thread)
        m_thread.emplace(m_name.c_str(), [state = m_state] { state->run(); });
}

void PortLine::close() {
    m_state->isWanted = false;
    m_state->isOpen = false;
    m_state->ask(State::Wish::CLOSE, nullptr);
}

void PortLine::endNotes() {
    m_state->endNotes = true;
    m_state->work.notify();
}

bool PortLine::play(std::uint32_t bytes, std::int64_t microseconds) {
    if (!m_state->isOpen.load(std::memory_order_acquire))
        return false;
    const bool taken = m_state->queue.push({bytes, microseconds});
    m_state->work.notify();
    return taken;
}

bool PortLine::isOpen() const {
    return m_state->isOpen;
}

bool PortLine::isWanted() const {
    return m_state->isWanted;
}

bool PortLine::hasFailed() const {
    return m_state->hasFailed;
}

bool PortLine::isIdle() const {
    return !m_thread || m_state->done == m_state->work.now();
}

std::uint64_t PortLine::dropped() const {
    return m_state->queue.dropped();
}

void PortLine::finish() {
    if (m_isFinished)
        return;
    m_isFinished = true;
    m_state->isWanted = false;
    m_state->isOpen = false;
    m_state->ask(State::Wish::FINISH, nullptr);
}

bool PortLine::waitUntilFinished(std::chrono::steady_clock::time_point deadline) {
    return !m_thread || m_thread->waitUntilEnded(deadline);
}

}
