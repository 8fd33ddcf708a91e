#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace Host::Cli {

// What "mirel run" was asked for.
struct RunOptions {
    static constexpr const char* INTERNAL_CLOCK = "internal";

    // Inputs and outputs by name or by number from 1; none: those that are enabled.
    std::vector<std::string> inputs;
    std::vector<std::string> outputs;

    std::string bank;     // Empty: the one of the settings.
    std::string program;  // By name or by number from 1, or a program file; empty: the first.
    std::string clock;    // INTERNAL_CLOCK or an input; empty: as the program says.
    std::string song;     // A MIDI file that comes in as if somebody played it.
    std::string recordFile;
    std::string dataFolder;  // Empty: the user's own.
    bool keys = false;
    bool virtualPorts = false;
    std::optional<std::chrono::milliseconds> length;  // None: until it is ended from outside.

    // Nothing, with one line in error, for arguments that can't be understood.
    static std::optional<RunOptions> parse(const std::vector<std::string>& arguments, std::string& error);
};

}
