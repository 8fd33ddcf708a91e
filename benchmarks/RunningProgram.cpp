#include "benchmarks/RunningProgram.h"

#include <chrono>
#include <thread>

namespace Benchmarks {

namespace {

std::vector<std::string> commandLine(const std::string& dataFolder, const std::vector<std::string>& options) {
    std::vector<std::string> words = {MIREL_PROGRAM, "run", "--data", dataFolder};
    words.insert(words.end(), options.begin(), options.end());
    return words;
}

}

RunningProgram::RunningProgram(const std::string& dataFolder, const std::vector<std::string>& options)
    : m_process(commandLine(dataFolder, options)) {}

bool RunningProgram::waitUntilPlaying() {
    constexpr auto PATIENCE = std::chrono::seconds(20);
    const auto limit = std::chrono::steady_clock::now() + PATIENCE;
    // Its last line names what it plays with.
    while (m_process.output().find(" bpm\n") == std::string::npos) {
        if (std::chrono::steady_clock::now() > limit)
            return false;
        std::this_thread::sleep_for(std::chrono::microseconds(100));
    }
    return true;
}

}
