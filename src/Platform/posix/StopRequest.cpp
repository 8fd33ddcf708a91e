#include "Platform/StopRequest.h"

#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace Platform {

namespace {

// A byte in it is a request. Handlers may do little else than write.
int requestPipe[2] = {-1, -1};

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
}

bool waitForStopRequest(std::chrono::milliseconds limit) {
    pollfd requested = {requestPipe[0], POLLIN, 0};
    return ::poll(&requested, 1, static_cast<int>(limit.count())) > 0;
}

}
