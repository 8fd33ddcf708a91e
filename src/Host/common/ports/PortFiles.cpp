#include "Host/common/ports/PortFiles.h"

#include "Platform/Files.h"

namespace Host {

using namespace Platform;

PortList readPortFile(const std::string& dataFolder, const char* file) {
    PortList list;
    if (!dataFolder.empty())
        list.readText(Files::read(Files::join(dataFolder, file), PortList::MAX_FILE_SIZE).value_or(std::string()));
    return list;
}

bool writePortFile(const std::string& dataFolder, const char* file, const std::string& text) {
    return dataFolder.empty() || (Files::createFolders(dataFolder) &&
                                  Files::replace(Files::join(dataFolder, file), Files::withSystemLineEnds(text)));
}

}
