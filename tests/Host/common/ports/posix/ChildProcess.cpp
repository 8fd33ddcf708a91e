#include "tests/Host/common/ports/posix/ChildProcess.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <stdexcept>

namespace Host {

namespace {

constexpr int COULD_NOT_START = 127;
constexpr auto PATIENCE = std::chrono::seconds(10);

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> environmentWith(const std::map<std::string, std::string>& additions) {
    std::vector<std::string> all;
    for (char** entry = environ; *entry; ++entry) {
        const std::string text = *entry;
        if (additions.count(text.substr(0, text.find('='))) == 0)
            all.push_back(text);
    }
    for (const auto& [name, value] : additions)
        all.push_back(name + "=" + value);
    return all;
}

// This process's end, and the other program's.
struct Ends {
    int nearEnd;
    int farEnd;
};

Ends openPipe() {
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    return {pipe[0], pipe[1]};
}

Ends openTerminal() {
    std::array<char, 128> name{};
    const int nearEnd = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (nearEnd < 0 || ::grantpt(nearEnd) != 0 || ::unlockpt(nearEnd) != 0 ||
        ::ptsname_r(nearEnd, name.data(), name.size()) != 0)
        throw std::runtime_error("no terminal");
    const int farEnd = ::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (farEnd < 0)
        throw std::runtime_error("no terminal");
    return {nearEnd, farEnd};
}

}

ChildProcess::ChildProcess(const std::vector<std::string>& arguments,
                           const std::map<std::string, std::string>& environment, Streams streams) {
    std::vector<std::string> argumentTexts = arguments;
    std::vector<std::string> environmentTexts = environmentWith(environment);
    const std::vector<char*> argumentPointers = pointersTo(argumentTexts);
    const std::vector<char*> environmentPointers = pointersTo(environmentTexts);
    const bool hasTerminal = streams == Streams::TERMINAL;
    const auto [nearEnd, farEnd] = hasTerminal ? openTerminal() : openPipe();
    const pid_t parent = ::getpid();
    m_pid = ::fork();
    if (m_pid == 0) {
        // Only system calls from here on: other threads may have held locks.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent)
            ::_exit(COULD_NOT_START);
        if (hasTerminal) {
            ::setsid();
            ::ioctl(farEnd, TIOCSCTTY, 0);
            ::dup2(farEnd, STDIN_FILENO);
        }
        ::dup2(farEnd, STDOUT_FILENO);
        ::dup2(farEnd, STDERR_FILENO);
        ::execvpe(argumentPointers[0], argumentPointers.data(), environmentPointers.data());
        ::_exit(COULD_NOT_START);
    }
    ::close(farEnd);
    m_outputEnd = nearEnd;
    if (m_pid < 0)
        throw std::runtime_error("no process");
    m_reader = std::thread([this] {
        std::array<char, 4096> block{};
        ssize_t count = 0;
        while ((count = ::read(m_outputEnd, block.data(), block.size())) > 0) {
            const std::lock_guard lock(m_mutex);
            m_output.append(block.data(), static_cast<std::size_t>(count));
        }
    });
}

ChildProcess::~ChildProcess() {
    end();
}

int ChildProcess::waitForIt() {
    int status = 0;
    ::waitpid(m_pid, &status, 0);
    m_pid = -1;
    m_reader.join();
    ::close(m_outputEnd);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

void ChildProcess::signal(int number) const {
    if (m_pid > 0)
        ::kill(m_pid, number);
}

bool ChildProcess::hasEnded() const {
    siginfo_t info = {};
    return m_pid < 0 || ::waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           info.si_pid != 0;
}

int ChildProcess::waitForExit() {
    return m_pid < 0 ? -1 : waitForIt();
}

void ChildProcess::type(const std::string& bytes) const {
    [[maybe_unused]] const auto written = ::write(m_outputEnd, bytes.data(), bytes.size());
}

void ChildProcess::end() {
    if (m_pid < 0)
        return;
    ::kill(m_pid, SIGCONT);
    ::kill(m_pid, SIGTERM);
    const auto limit = std::chrono::steady_clock::now() + PATIENCE;
    while (!hasEnded()) {
        if (std::chrono::steady_clock::now() > limit)
            ::kill(m_pid, SIGKILL);
        std::this_thread::yield();
    }
    waitForIt();
}

void ChildProcess::kill() {
    if (m_pid < 0)
        return;
    ::kill(m_pid, SIGKILL);
    waitForIt();
}

void ChildProcess::suspend(bool isSuspended) const {
    ::kill(m_pid, isSuspended ? SIGSTOP : SIGCONT);
}

std::string ChildProcess::output() const {
    const std::lock_guard lock(m_mutex);
    return m_output;
}

}
