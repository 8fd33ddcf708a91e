#include "tests/Host/common/posix/ChildProcess.h"

#include <fcntl.h>
#include <signal.h>
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

}

ChildProcess::ChildProcess(const std::vector<std::string>& arguments,
                           const std::map<std::string, std::string>& environment) {
    std::vector<std::string> argumentTexts = arguments;
    std::vector<std::string> environmentTexts = environmentWith(environment);
    const std::vector<char*> argumentPointers = pointersTo(argumentTexts);
    const std::vector<char*> environmentPointers = pointersTo(environmentTexts);
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    const pid_t parent = ::getpid();
    m_pid = ::fork();
    if (m_pid == 0) {
        // Nothing but system calls here: other threads may have held locks.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent)
            ::_exit(COULD_NOT_START);
        ::dup2(pipe[1], STDOUT_FILENO);
        ::dup2(pipe[1], STDERR_FILENO);
        ::execvpe(argumentPointers[0], argumentPointers.data(), environmentPointers.data());
        ::_exit(COULD_NOT_START);
    }
    ::close(pipe[1]);
    m_outputEnd = pipe[0];
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

void ChildProcess::waitForIt() {
    ::waitpid(m_pid, nullptr, 0);
    m_pid = -1;
    m_reader.join();
    ::close(m_outputEnd);
}

void ChildProcess::end() {
    if (m_pid < 0)
        return;
    ::kill(m_pid, SIGCONT);
    ::kill(m_pid, SIGTERM);
    const auto limit = std::chrono::steady_clock::now() + PATIENCE;
    siginfo_t info = {};
    while (::waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid == 0) {
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
