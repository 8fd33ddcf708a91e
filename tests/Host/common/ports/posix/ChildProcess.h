#pragma once

#include <sys/types.h>

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Host {

// Another program that runs for a test and never outlives it, however the test ends.
class ChildProcess {
public:
    enum class Streams {
        PIPE,      // Its output goes through a pipe; it reads this process's input.
        TERMINAL,  // It has a pseudo terminal of its own, at which this process types.
    };

    // Starts a program from the path, with additions to the environment. Everything it prints is kept.
    explicit ChildProcess(const std::vector<std::string>& arguments,
                          const std::map<std::string, std::string>& environment = {}, Streams streams = Streams::PIPE);

    // Does what end does.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Asks it to end, kills it after a while, and waits.
    void end();

    // Ends it at once, without a chance to clean up.
    void kill();

    // Sends it a signal. Does nothing once it has been waited for.
    void signal(int number) const;

    // Whether it has ended by itself.
    bool hasEnded() const;

    // Waits until it has ended by itself, and returns its exit status; negative, the signal that ended it.
    int waitForExit();

    // Types at its terminal.
    void type(const std::string& bytes) const;

    // 0 or less once it has been waited for.
    int pid() const { return m_pid; }

    // Suspends or resumes it.
    void suspend(bool isSuspended) const;

    // [any] What it has printed so far.
    std::string output() const;

private:
    int waitForIt();

    pid_t m_pid = -1;
    int m_outputEnd = -1;  // This process's end of the pipe or terminal.
    mutable std::mutex m_mutex;
    std::string m_output;
    std::thread m_reader;
};

}
