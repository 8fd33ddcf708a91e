// Any bytes as the file of settings. What was read is still there after it was written.
#include "Backend/core/settings/RegistrySettings.h"
#include "Platform/Files.h"
#include "Platform/TemporaryFolder.h"

#include <cstdlib>
#include <fstream>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const Platform::TemporaryFolder folder;
    const std::string path = Platform::Files::join(folder.getPath(), "settings");
    {
        std::ofstream file(path, std::ios::binary);
        file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    const auto store = Platform::createFileSettingsStore(path);
    Backend::RegistrySettings settings(*store);
    settings.loadFromRegistry("key");
    const auto values = settings.describe();
    settings.saveToRegistry("key");
    Backend::RegistrySettings again(*store);
    again.loadFromRegistry("key");
    if (again.describe() != values)
        std::abort();
    return 0;
}
