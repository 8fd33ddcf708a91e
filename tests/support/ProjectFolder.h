#pragma once

#include <string>

namespace TestSupport {

// The path of a file that comes with the project.
inline std::string projectFile(const std::string& name) {
    return std::string(MIREL_PROJECT_FOLDER "/") + name;
}

}
