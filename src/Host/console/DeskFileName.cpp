#include "Host/console/DeskFileName.h"

#include <algorithm>

namespace Host::Console {

namespace {

// Where the extension begins, including its dot; the end of the path if there is none.
std::size_t findExtension(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    const std::size_t separator = path.find_last_of("/\\");
    if (dot == std::string::npos || (separator != std::string::npos && dot < separator))
        return path.size();
    return dot;
}

char toLower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

}

std::string withLowerCaseExtension(const std::string& path) {
    std::string result = path;
    const auto extension = result.begin() + static_cast<std::ptrdiff_t>(findExtension(path));
    std::transform(extension, result.end(), extension, toLower);
    return result;
}

DeskFileKind kindOfDeskFile(const std::string& path) {
    const std::string extension = withLowerCaseExtension(path).substr(findExtension(path));
    return extension == ".bnk" ? DeskFileKind::BANK : extension == ".prg" ? DeskFileKind::PROGRAM : DeskFileKind::NONE;
}

}
