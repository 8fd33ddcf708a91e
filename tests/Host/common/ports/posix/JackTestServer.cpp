#include "tests/Host/common/ports/posix/JackTestServer.h"

#include "Host/common/ports/posix/JackServer.h"
#include "tests/support/Eventually.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace Host {

using TestSupport::eventually;

// JACK's list of servers on a computer is short, and one that was killed stays on it until another one takes its name.
// So there are only a few names, and each test takes a free one.
JackTestServer::JackTestServer() {
    constexpr int NAMES = 4;
    const bool isFound = eventually([this] {
        for (int number = 1; number <= NAMES && m_lock < 0; ++number)
            tryName(std::string("mirel-test-") + std::to_string(number));
        return m_lock >= 0;
    });
    if (!isFound)
        throw std::runtime_error("no name is free for a JACK server");
    // Read by JACK's library in this process and in every process it starts.
    ::setenv("JACK_DEFAULT_SERVER", m_name.c_str(), 1);
    ::setenv("JACK_NO_AUDIO_RESERVATION", "1", 1);
}

// The system also releases the lock when the test dies.
JackTestServer::~JackTestServer() {
    m_process.reset();
    ::close(m_lock);
}

void JackTestServer::tryName(const std::string& name) {
    const int file = ::open(("/tmp/" + name + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (file >= 0 && ::flock(file, LOCK_EX | LOCK_NB) == 0) {
        m_lock = file;
        m_name = name;
    } else if (file >= 0) {
        ::close(file);
    }
}

bool JackTestServer::start(Cycles cycles, int frames) {
    std::vector<std::string> command = {"jackd", "-n", m_name, "-r"};
    if (cycles == Cycles::COMPLETE)
        command.insert(command.end(), {"-S", "-t", "5000"});
    command.insert(command.end(), {"-d", "dummy", "-r", "48000", "-p", std::to_string(frames)});
    m_process.emplace(command);
    return eventually([&] {
        // JACK takes the last server of this name for a running one until its process is gone completely.
        if (m_process->hasEnded())
            m_process.emplace(command);
        return JackServer::connect("probe") != nullptr;
    });
}

}
