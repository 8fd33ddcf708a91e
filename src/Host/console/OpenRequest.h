#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Host::Console {

// What a running desk is asked to open, at its own start or by a later one.
struct OpenRequest {
    std::string bank;     // A path; empty: none.
    std::string program;  // In the form used on the command line; empty: none.
    std::vector<std::string> files;

    bool empty() const { return bank.empty() && program.empty() && files.empty(); }
    bool operator==(const OpenRequest&) const = default;

    // [any] One line per part. Reading skips lines that make no sense.
    std::string toText() const;
    static OpenRequest fromText(std::string_view text);
};

}
