#pragma once

#include <bitset>
#include <optional>
#include <string>
#include <vector>

namespace Host::Cli {

// The options of "mirel render".
struct RenderOptions {
    static constexpr int CHANNELS = 16;

    std::string input;
    std::string output;
    std::string layersFile;  // Empty: a desk's initial layers, one that passes everything.
    std::string zonesFile;   // Empty: no zones.
    std::string dataFolder;  // Holds the folder of sequence presets; empty: none.
    std::bitset<CHANNELS> through = std::bitset<CHANNELS>().set();  // Channels that enter the layers.
    int zone = -1;                                                  // For the events that enter the layers; -1: none.
    bool zoneIsChannel = false;                                     // Each event's zone has the number of its channel.
    int tempo = 0;                                                  // Beats per minute; 0: the file's own tempi.
    double sliceMilliseconds = 0;                                   // 0: slices of one ppq.
};

// [any] Parses the arguments after "render". Nothing, with one line in error, for arguments that make no sense.
[[nodiscard]] std::optional<RenderOptions> parseRenderOptions(const std::vector<std::string>& arguments,
                                                              std::string& error);

}
