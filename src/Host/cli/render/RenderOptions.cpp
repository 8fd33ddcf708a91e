#include "Host/cli/render/RenderOptions.h"

#include "Host/cli/script/ScriptArguments.h"

#include <cmath>
#include <cstdlib>
#include <string_view>

namespace Host::Cli {

namespace {

constexpr int LOWEST_TEMPO = 20;
constexpr int HIGHEST_TEMPO = 250;
constexpr int HIGHEST_ZONE = 128;
constexpr double LONGEST_SLICE = 1000;

std::optional<int> parseBetween(std::string_view text, int lowest, int highest) {
    const auto number = parseNumber(text);
    return number && *number >= lowest && *number <= highest ? number : std::nullopt;
}

// "1,3,5-8", counted from 1.
bool parseChannels(std::string_view text, std::bitset<RenderOptions::CHANNELS>& channels) {
    channels.reset();
    while (true) {
        const auto comma = text.find(',');
        const std::string_view piece = text.substr(0, comma);
        const auto dash = piece.find('-');
        const auto first = parseBetween(piece.substr(0, dash), 1, RenderOptions::CHANNELS);
        const auto last =
            dash == std::string_view::npos ? first : parseBetween(piece.substr(dash + 1), 1, RenderOptions::CHANNELS);
        if (!first || !last || *last < *first)
            return false;
        for (int channel = *first; channel <= *last; ++channel)
            channels.set(static_cast<std::size_t>(channel - 1));
        if (comma == std::string_view::npos)
            return true;
        text.remove_prefix(comma + 1);
    }
}

bool parseZone(const std::string& text, RenderOptions& options) {
    options.zoneIsChannel = text == "channel";
    if (options.zoneIsChannel)
        return true;
    const auto zone = parseBetween(text, 1, HIGHEST_ZONE);
    options.zone = zone.value_or(0) - 1;
    return zone.has_value();
}

bool parseSlice(const std::string& text, RenderOptions& options) {
    char* end = nullptr;
    options.sliceMilliseconds = std::strtod(text.c_str(), &end);
    return !text.empty() && *end == '\0' && options.sliceMilliseconds > 0 && options.sliceMilliseconds <= LONGEST_SLICE;
}

// Applies one option with its value.
bool applyOption(const std::string& name, const std::string& value, RenderOptions& options, std::string& error) {
    if (name == "--layers") {
        options.layersFile = value;
    } else if (name == "--zones") {
        options.zonesFile = value;
    } else if (name == "--data") {
        options.dataFolder = value;
    } else if (name == "--through") {
        if (!parseChannels(value, options.through))
            error = "--through takes channels from 1 to 16, such as 1,3,5-8, not \"" + value + "\"";
    } else if (name == "--zone") {
        if (!parseZone(value, options))
            error = "--zone takes a zone from 1 to 128 or \"channel\", not \"" + value + "\"";
    } else if (name == "--tempo") {
        options.tempo = parseBetween(value, LOWEST_TEMPO, HIGHEST_TEMPO).value_or(0);
        if (options.tempo == 0)
            error = "--tempo takes beats per minute from 20 to 250, not \"" + value + "\"";
    } else if (name == "--slice") {
        if (!parseSlice(value, options))
            error = "--slice takes milliseconds above 0 and up to 1000, not \"" + value + "\"";
    } else {
        error = "unknown option " + name;
    }
    return error.empty();
}

}

std::optional<RenderOptions> parseRenderOptions(const std::vector<std::string>& arguments, std::string& error) {
    RenderOptions options;
    std::vector<std::string> files;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (!argument.starts_with("--")) {
            files.push_back(argument);
            continue;
        }
        if (i + 1 == arguments.size()) {
            error = argument + " has no value, or is not an option";
            return std::nullopt;
        }
        if (!applyOption(argument, arguments[++i], options, error))
            return std::nullopt;
    }
    if (files.size() != 2) {
        error = "render takes two files, IN.mid and OUT.mid";
        return std::nullopt;
    }
    options.input = files[0];
    options.output = files[1];
    // Zones need events that belong to zones.
    if (!options.zonesFile.empty() && options.zone < 0)
        options.zoneIsChannel = true;
    return options;
}

}
