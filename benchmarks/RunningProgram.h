#pragma once

#include "tests/Host/common/ports/posix/ChildProcess.h"

#include <string>
#include <vector>

namespace Benchmarks {

// "mirel run" as a separate process, on the caller's data folder.
class RunningProgram {
public:
    RunningProgram(const std::string& dataFolder, const std::vector<std::string>& options = {});

    // Waits until it has reported that it plays. False if it never does.
    bool waitUntilPlaying();

    int pid() const { return m_process.pid(); }
    std::string output() const { return m_process.output(); }

private:
    Host::ChildProcess m_process;
};

}
