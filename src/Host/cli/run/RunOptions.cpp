#include "Host/cli/run/RunOptions.h"

#include <array>
#include <cstdlib>

namespace Host::Cli {

namespace {

// Options that take one text.
struct TextOption {
    const char* name;
    std::string RunOptions::*target;
};

constexpr std::array<TextOption, 6> TEXT_OPTIONS = {{
    {"--bank", &RunOptions::bank},
    {"--program", &RunOptions::program},
    {"--clock", &RunOptions::clock},
    {"--play", &RunOptions::song},
    {"--record", &RunOptions::recordFile},
    {"--data", &RunOptions::dataFolder},
}};

std::optional<std::chrono::milliseconds> parseSeconds(const std::string& text) {
    constexpr double LONGEST = 1000000;
    constexpr double MILLISECONDS = 1000;
    char* end = nullptr;
    const double seconds = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !(seconds >= 0) || seconds > LONGEST)
        return std::nullopt;
    return std::chrono::milliseconds(static_cast<std::int64_t>(seconds * MILLISECONDS));
}

// Applies one option with its value. False, with the reason in error, if that is impossible.
bool applyOption(const std::string& name, const std::string& value, RunOptions& options, std::string& error) {
    if (value.empty()) {
        error = name + " needs a value";
        return false;
    }
    for (const TextOption& option : TEXT_OPTIONS) {
        if (name == option.name) {
            options.*option.target = value;
            return true;
        }
    }
    if (name == "--in") {
        options.inputs.push_back(value);
    } else if (name == "--out") {
        options.outputs.push_back(value);
    } else if (name == "--seconds") {
        options.length = parseSeconds(value);
        if (!options.length)
            error = "--seconds takes a number of seconds, not \"" + value + "\"";
        return options.length.has_value();
    } else {
        error = "unknown option " + name;
        return false;
    }
    return true;
}

}

std::optional<RunOptions> RunOptions::parse(const std::vector<std::string>& arguments, std::string& error) {
    RunOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        if (name == "--keys") {
            options.keys = true;
        } else if (name == "--virtual") {
            options.virtualPorts = true;
        } else if (!name.starts_with("--")) {
            error = "run takes options only, not \"" + name + "\"";
            return std::nullopt;
        } else {
            const std::string value = i + 1 < arguments.size() ? arguments[++i] : std::string();
            if (!applyOption(name, value, options, error))
                return std::nullopt;
        }
    }
    return options;
}

}
