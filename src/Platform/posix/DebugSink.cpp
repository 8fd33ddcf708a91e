#include "Platform/DebugSink.h"

#include <cstdio>
#include <filesystem>

namespace Platform {

void writeSystemDebugText(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stderr);
}

std::string debugFilePath() {
    std::error_code error;
    const auto folder = std::filesystem::temp_directory_path(error);
    return ((error ? std::filesystem::path("/tmp") : folder) / "mirel-dbg.txt").string();
}

}
