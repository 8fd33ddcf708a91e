#pragma once

#include <bitset>
#include <optional>
#include <string>
#include <vector>

namespace Host::Cli {

// What "mirel render" was asked for.
struct RenderOptions {
    static constexpr int CHANNELS = 16;

    std::string input;
    std::string output;
    std::string layersFile;  // Empty: what a desk starts with, one layer that lets everything pass.
    std::string zonesFile;   // Empty: no zones.
    std::string dataFolder;  // Where the folder of sequence presets is; empty: none.
    std::bitset<CHANNELS> through = std::bitset<CHANNELS>().set();  // Channels that enter the layers.
    int zone = -1;                                                  // Of the events that enter the layers; -1: none.
    bool zoneIsChannel = false;                                     // Each has the zone of its channel's number.
    int tempo = 0;                                                  // Beats per minute; 0: those of the file.
    double sliceMilliseconds = 0;                                   // 0: slices of one ppq.
};

// [any] From the words after "render". Nothing, with one line in error, for words that make no sense.
[[nodiscard]] std::optional<RenderOptions> parseRenderOptions(const std::vector<std::string>& arguments,
                                                              std::string& error);

}
