#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace Host::Cli {

// The options of "mirel run".
struct RunOptions {
    static constexpr const char* INTERNAL_CLOCK = "internal";

    // Inputs and outputs by name or by number from 1; empty: the enabled ones.
    std::vector<std::string> inputs;
    std::vector<std::string> outputs;

    std::string bank;     // Empty: the one in the settings.
    std::string program;  // By name or by number from 1, or a program file; empty: the first.
    std::string clock;    // INTERNAL_CLOCK or an input; empty: what the program says.
    std::string song;     // A MIDI file to play into the desk as if live.
    std::string recordFile;
    std::string dataFolder;  // Empty: the user's own.
    bool keys = false;
    bool virtualPorts = false;
    std::optional<std::chrono::milliseconds> length;  // Nothing: until it is ended from outside.

    // Nothing, with one line in error, for arguments that make no sense.
    static std::optional<RunOptions> parse(const std::vector<std::string>& arguments, std::string& error);
};

}
