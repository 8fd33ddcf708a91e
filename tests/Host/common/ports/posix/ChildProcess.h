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
    enum class Streams {
        PIPE,      // What it prints goes through a pipe; it reads what this process would.
        TERMINAL,  // It has a pseudo terminal of its own, at which this process types.
    };

    // Starts a program of the path, with additions to the environment. All that it prints is kept.
    explicit ChildProcess(const std::vector<std::string>& arguments,
                          const std::map<std::string, std::string>& environment = {}, Streams streams = Streams::PIPE);

    // As end.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Asks it to end, insists after a while, and waits.
    void end();

    // Ends it at once, without a chance to clean up.
    void kill();

    // Sends it a signal. Nothing happens if it has been waited for.
    void signal(int number) const;

    // Whether it has ended by itself.
    bool hasEnded() const;

    // Waits until it has ended by itself, and tells its exit status; negative, the signal that ended it.
    int waitForExit();

    // Types at its terminal.
    void type(const std::string& bytes) const;

    // 0 or less once it has been waited for.
    int pid() const { return m_pid; }

    // Stops it where it is, or lets it go on.
    void suspend(bool isSuspended) const;

    // [any] What it has printed so far.
    std::string output() const;

private:
    int waitForIt();

    pid_t m_pid = -1;
    int m_outputEnd = -1;  // The near end of the pipe or of the terminal.
    mutable std::mutex m_mutex;
    std::string m_output;
    std::thread m_reader;
};

}
