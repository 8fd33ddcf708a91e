#include "Platform/TemporaryFolder.h"

#include "Platform/SystemPath.h"

#include <random>
#include <stdexcept>

namespace Platform {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    constexpr int TRIES = 100;
    std::random_device random;
    std::error_code error;
    const fs::path base = fs::temp_directory_path(error);
    for (int i = 0; i < TRIES && !error; ++i) {
        const fs::path folder = base / ("mirel-" + std::to_string(random()));
        if (fs::create_directory(folder, error)) {
            m_path = utf8Path(folder);
            return;
        }
    }
    throw std::runtime_error("no temporary folder can be made");
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    fs::remove_all(*systemPath(m_path), error);
}

}
