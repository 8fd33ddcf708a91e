#pragma once

#include "Host/cli/ExitStatus.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace Host::Cli {

using Arguments = std::vector<std::string>;

// What a command of the program prints about itself.
struct CommandUsage {
    const char* text;                  // All of it, as --help prints it; it ends with a line end.
    const char* afterError = nullptr;  // What follows an error in place of the text, where that is too long.
};

// Ends a command with its text as one line on standard error.
class CommandError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// [main] Prints the usage and returns true if the only argument is --help.
bool printHelp(const CommandUsage& usage, const Arguments& arguments);

// [main] Prints the error and the usage; for an empty error only the usage.
void printUsageError(const CommandUsage& usage, const std::string& error);

// [main] Flushes standard output first.
void printCommandError(const CommandError& error);

// [main] Runs one command of the program from its arguments to its exit status: answers --help, lets parse(arguments,
// error) turn the arguments into an optional of options, and calls run(options), which returns an ExitStatus or throws
// a CommandError.
template <typename Parse, typename Run>
int runWithOptions(const CommandUsage& usage, const Arguments& arguments, Parse parse, Run run) {
    if (printHelp(usage, arguments))
        return DONE;
    std::string error;
    const auto options = parse(arguments, error);
    if (!options) {
        printUsageError(usage, error);
        return FAILED;
    }
    try {
        return run(*options);
    } catch (const CommandError& failure) {
        printCommandError(failure);
        return FAILED;
    }
}

}
