#include "Platform/StopRequest.h"

#include <atomic>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace Platform {

namespace {

// A byte in this pipe is a request: signal handlers may do little more than write.
int requestPipe[2] = {-1, -1};

std::atomic<bool> pauseRequested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a handler sets it");

void requestPause(int) {
    pauseRequested = true;
}

void request(int) {
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(requestPipe[1], &byte, 1);
}

}

void watchForStopRequests() {
    if (::pipe2(requestPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    struct sigaction action = {};
    action.sa_handler = request;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGINT, SIGQUIT, SIGTERM, SIGHUP})
        ::sigaction(signal, &action, nullptr);
    // If the program was started where nobody could resume it, it must not pause.
    struct sigaction present = {};
    if (::sigaction(SIGTSTP, nullptr, &present) != 0 || present.sa_handler == SIG_IGN)
        return;
    action.sa_handler = requestPause;
    ::sigaction(SIGTSTP, &action, nullptr);
}

bool waitForStopRequest(std::chrono::milliseconds limit) {
    pollfd requested = {requestPipe[0], POLLIN, 0};
    return ::poll(&requested, 1, static_cast<int>(limit.count())) > 0;
}

bool isPauseRequested() {
    return pauseRequested;
}

// Only the signal's default action pauses a program.
void pauseProgram() {
    struct sigaction pausing = {};
    struct sigaction watching = {};
    pausing.sa_handler = SIG_DFL;
    ::sigaction(SIGTSTP, &pausing, &watching);
    ::raise(SIGTSTP);
    ::sigaction(SIGTSTP, &watching, nullptr);
    pauseRequested = false;
}

}
