#include "Host/console/CommandLine.h"

#include "Host/console/DeskFileName.h"

#include <array>

namespace Host::Console {

namespace {

struct TextOption {
    const char* name;
    std::string CommandLine::*target;
};

constexpr std::array<TextOption, 4> TEXT_OPTIONS = {{
    {"--bank", &CommandLine::bank},
    {"--program", &CommandLine::program},
    {"--data", &CommandLine::dataFolder},
    {"--record", &CommandLine::recordFile},
}};

// Adds the file. False, with the reason in error, if it is not a kind of file the desk opens.
bool addFile(const std::string& path, CommandLine& line, std::string& error) {
    if (kindOfDeskFile(path) == DeskFileKind::NONE) {
        error = "\"" + path + "\" is neither a bank (.bnk) nor a program (.prg)";
        return false;
    }
    line.files.push_back(path);
    return true;
}

}

std::optional<CommandLine> CommandLine::parse(const std::vector<std::string>& arguments, std::string& error) {
    CommandLine line;
    bool optionsAreOver = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (optionsAreOver || !argument.starts_with("-")) {
            if (!addFile(argument, line, error))
                return std::nullopt;
            continue;
        }
        if (argument == "--") {
            optionsAreOver = true;
            continue;
        }
        if (argument == "--help" || argument == "--version") {
            line.action = argument == "--help" ? Action::SHOW_HELP : Action::SHOW_VERSION;
            return line;
        }
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        std::string CommandLine::*target = nullptr;
        for (const TextOption& option : TEXT_OPTIONS)
            if (name == option.name)
                target = option.target;
        if (!target) {
            error = "unknown option " + name;
            return std::nullopt;
        }
        if (equals != std::string::npos)
            line.*target = argument.substr(equals + 1);
        else
            line.*target = i + 1 < arguments.size() ? arguments[++i] : std::string();
        if ((line.*target).empty()) {
            error = name + " needs a value";
            return std::nullopt;
        }
    }
    return line;
}

}
