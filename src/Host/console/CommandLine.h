#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Host::Console {

// What the desk with a window was started with.
struct CommandLine {
    static constexpr const char* USAGE =
        "usage: MirelConsole [--bank FILE] [--program NAME] [--data DIR] [--record FILE.mid] [FILE]...\n"
        "\n"
        "  --bank     the bank to load (default: the one in the settings, or the built-in set-up)\n"
        "  --program  a program of the bank by name or by number, or a program file (.prg)\n"
        "  --data     keep the desk's settings and folders in this folder\n"
        "  --record   write what was played to a MIDI file at the end\n"
        "  --version  print the version\n"
        "  --help     print this\n"
        "  FILE       a bank (.bnk) or a program (.prg) to open\n";

    enum class Action { RUN, SHOW_HELP, SHOW_VERSION };

    Action action = Action::RUN;
    std::string bank;        // Empty: the one in the settings.
    std::string program;     // By name or by number from 1, or a program file; empty: the first.
    std::string dataFolder;  // Empty: the user's own.
    std::string recordFile;
    std::vector<std::string> files;  // Banks and programs, in order.

    // [any] The arguments after the program's name. A value follows its option, or a "=" in it; after "--" everything
    // is a file. Nothing, with one line in error, for arguments that make no sense.
    static std::optional<CommandLine> parse(const std::vector<std::string>& arguments, std::string& error);
};

}
