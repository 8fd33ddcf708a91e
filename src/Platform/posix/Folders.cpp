#include "Platform/Folders.h"

#include "Platform/Files.h"

#include <cstdlib>

namespace Platform {

std::string userDataFolder() {
    std::string folder;
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/')
        folder = data;
    else if (const char* home = std::getenv("HOME"); home && *home == '/')
        folder = std::string(home) + "/.local/share";
    else
        return {};
    return Files::createFolders(folder) ? folder : std::string();
}

}
