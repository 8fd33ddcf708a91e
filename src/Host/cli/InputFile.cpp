#include "Host/cli/InputFile.h"

#include "Platform/Files.h"

namespace Host::Cli {

bool readInputFile(const std::string& path, std::string& content, std::string& error) {
    if (auto bytes = Platform::Files::read(path)) {
        content = std::move(*bytes);
        return true;
    }
    const auto size = Platform::Files::size(path);
    error = size && *size > Platform::Files::MAX_SIZE
                ? "is larger than " + std::to_string(Platform::Files::MAX_SIZE >> 20) + " MiB"
                : "can't be read";
    return false;
}

}
