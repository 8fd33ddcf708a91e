// What a benchmark file states: its cases by name. Each can be timed, and can be run a given number of times so that a
// tool counts its instructions.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Benchmarks {

// One thing to measure, set up and ready.
class Case {
public:
    virtual ~Case() = default;

    // Runs the measured operation this many times.
    virtual void run(std::int64_t operations) = 0;
};

// Adds a case that make sets up. Call it at the start of the program.
void addCase(const std::string& name, std::function<std::unique_ptr<Case>()> make);

}
