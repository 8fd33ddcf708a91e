#pragma once

#include "Platform/SystemPath.h"

#include <filesystem>
#include <string>

namespace TestSupport {

// Changes the current folder while this object exists.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::string& path) : m_before(std::filesystem::current_path()) {
        std::filesystem::current_path(*Platform::systemPath(path));
    }
    ~CurrentFolder() {
        std::error_code error;
        std::filesystem::current_path(m_before, error);
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    std::filesystem::path m_before;
};

}
