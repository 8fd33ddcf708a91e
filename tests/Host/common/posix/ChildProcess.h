#pragma once

#include <sys/types.h>

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Host {

// Another program that runs for a test and does not outlive it, however the test ends.
class ChildProcess {
public:
    // Starts a program of the path, with additions to the environment. All that it prints is kept.
    explicit ChildProcess(const std::vector<std::string>& arguments,
                          const std::map<std::string, std::string>& environment = {});

    // As end.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Asks it to end, insists after a while, and waits.
    void end();

    // Ends it at once, without a chance to clean up.
    void kill();

    // Stops it where it is, or lets it go on.
    void suspend(bool isSuspended) const;

    // [any] What it has printed so far.
    std::string output() const;

private:
    void waitForIt();

    pid_t m_pid = -1;
    int m_outputEnd = -1;
    mutable std::mutex m_mutex;
    std::string m_output;
    std::thread m_reader;
};

}
